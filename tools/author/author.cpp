#include "author/author.h"

namespace AnimText {

namespace {

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
    QVector<QHash<QString, QString>> styles;
    for (const StyleRun& run : authored->styled.runs)
        styles.append(StyleRow(run));
    for (int i = 0; i < authored->text.size(); ++i) {
        const StyleRun& style = authored->styled.At(authored->source[i]);
        node.lists[QStringLiteral("TextAttribute")].append(
            styles[int(&style - authored->styled.runs.constData())]);
        node.lists[QStringLiteral("TextHeight")].append(
            {{QStringLiteral("text_height"), QString::number(authored->heights[i])}});
        node.lists[QStringLiteral("TextWidth")].append(
            {{QStringLiteral("text_width"), QString::number(authored->widths[i])}});
    }
    return true;
}

} // namespace AnimText
