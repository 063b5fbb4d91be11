#include "author/author.h"

namespace AnimText {

namespace {

QList<QHash<QString, QString>> Rows(const QString& field, const QVector<int>& values)
{
    QList<QHash<QString, QString>> rows;
    rows.reserve(values.size());
    for (int value : values)
        rows.append({{field, QString::number(value)}});
    return rows;
}

QHash<QString, QString> StyleRow(const StyleRun& style)
{
    const auto number = [](int value) { return QString::number(value); };
    const int points = qMax(1, qRound(style.font.pixelSize() * 72 / 96.0));
    return {{QStringLiteral("fontName"), style.font.family()},
            {QStringLiteral("fontSize"), number(points)},
            {QStringLiteral("bold"), number(style.font.bold() ? 1 : 0)},
            {QStringLiteral("italic"), number(style.font.italic() ? 1 : 0)},
            {QStringLiteral("underline"), number(style.font.underline() ? 1 : 0)},
            {QStringLiteral("Color"), number(int(style.color.rgb() & 0xFFFFFF))}};
}

QList<QHash<QString, QString>> StyleRows(const LaidOut& laid)
{
    QVector<QHash<QString, QString>> styles;
    for (const StyleRun& run : laid.styled.runs)
        styles.append(StyleRow(run));
    QList<QHash<QString, QString>> rows;
    rows.reserve(laid.source.size());
    for (int unit : laid.source)
        rows.append(styles[int(&laid.styled.At(unit) - laid.styled.runs.constData())]);
    return rows;
}

} // namespace

bool AuthorNode(const TextSource& source, const SceneNode& settings, const NodeMotion& motion,
                AuthoredNode* authored, QString* error)
{
    if (!LayOut(source.text, source, motion, settings.size, authored, error))
        return false;
    SceneNode& node = authored->node;
    node = settings;
    node.size = authored->area;
    SetMotion(&node, motion);
    node.attributes[QStringLiteral("Text")] = authored->text;
    node.lists[QStringLiteral("TextWidth")] = Rows(QStringLiteral("text_width"), authored->widths);
    node.lists[QStringLiteral("TextHeight")] =
        Rows(QStringLiteral("text_height"), authored->heights);
    node.lists[QStringLiteral("TextAttribute")] = StyleRows(*authored);
    return true;
}

} // namespace AnimText
