#include "studio/window/findingslist.h"

#include "studio/window/looks.h"

#include <QHeaderView>
#include <QPushButton>
#include <QRegularExpression>

namespace AnimText {
namespace {

enum Column { What, Where, Help };

TextChange SetAttribute(const char* key, int value)
{
    const QString name = QLatin1String(key);
    return [name, value](SignText* text) { text->node.attributes[name] = value; };
}

TextChange RemoveAttributes(const QStringList& keys)
{
    return [keys](SignText* text) {
        for (const QString& key : keys)
            text->node.attributes.remove(key);
    };
}

} // namespace

Fix FixFor(const Finding& finding, const SignText& text, const QSize& display)
{
    const auto tr = [](const char* words) { return FindingsList::tr(words); };
    const bool scrolls = IsScroll(text.node);
    switch (finding.mistake) {
    case Mistake::SpeedRange: {
        const char* key = scrolls ? "ContinueSpeed" : "AnimationSpeed";
        const int speed = text.node.attributes.value(QLatin1String(key)).toInt();
        return {tr("Nearest speed"), SetAttribute(key, qBound(0, speed, 9))};
    }
    case Mistake::PlaysRange: return {tr("Play once"), SetAttribute("PlayTimes", 1)};
    case Mistake::HoldRange:
        return {tr("No hold"), [](SignText* edited) { edited->node.hold = 0; }};
    case Mistake::ModeUnknown: return {tr("Entrance effect"), SetAttribute("EffectType", 0)};
    case Mistake::EffectUnknown: return {tr("Typed effect"), SetAttribute("AnimationEffect", 4)};
    case Mistake::DirectionUnknown: return {tr("Scroll left"), SetAttribute("ContinueStyle", 0)};
    case Mistake::AreaOutside:
        return {tr("Move onto the display"), [display](SignText* edited) {
                    SceneNode& node = edited->node;
                    node.size = node.size.boundedTo(display);
                    node.pos.setX(qBound(0, node.pos.x(), display.width() - node.size.width()));
                    node.pos.setY(qBound(0, node.pos.y(), display.height() - node.size.height()));
                }};
    case Mistake::TextHigh:
        return {tr("Fit the height"), [](SignText* edited) { edited->source.fit = Fit::Height; }};
    case Mistake::CharacterWide:
        return {tr("Fit the area"), [](SignText* edited) { edited->source.fit = Fit::Both; }};
    case Mistake::ColorsIgnored:
        return {tr("First color for all"), [](SignText* edited) {
                    QVector<StyleRun>& runs = edited->source.text.runs;
                    for (StyleRun& run : runs)
                        run.color = runs.first().color;
                }};
    case Mistake::GradientIgnored:
    case Mistake::PictureIgnored: return {tr("Turn dazzle on"), SetAttribute("CheckDazzle", 1)};
    case Mistake::StrokeIgnored:
        return {tr("Remove"),
                RemoveAttributes({QStringLiteral("Stroke"), QStringLiteral("StrokeColor")})};
    case Mistake::ShadowIgnored:
        return {tr("Remove"), RemoveAttributes({QStringLiteral("CheckShadowEffect"),
                                                QStringLiteral("TextShadowBox")})};
    default: return {};
    }
}

int TextOf(const Finding& finding, const Sign& sign)
{
    static const QRegularExpression place(
        QStringLiteral("^\\$\\.pages\\[(\\d+)\\]\\.areas\\[(\\d+)\\]\\.nodes\\[(\\d+)\\]"));
    const QRegularExpressionMatch match = place.match(finding.place);
    if (!match.hasMatch())
        return -1;
    int behind = match.captured(3).toInt();
    for (int i = 0; i < sign.texts.size(); ++i) {
        const SignText& text = sign.texts.at(i);
        if (text.page == match.captured(1).toInt() && text.area == match.captured(2).toInt() &&
            behind-- == 0)
            return i;
    }
    return -1;
}

FindingsList::FindingsList(QWidget* parent)
    : QTreeWidget(parent)
{
    setColumnCount(3);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setFrameShape(QFrame::NoFrame);
    setUniformRowHeights(true);
    setAccessibleName(tr("Findings"));
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(What, QHeaderView::Stretch);
    header()->setSectionResizeMode(Where, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(Help, QHeaderView::ResizeToContents);
    connect(this, &QTreeWidget::itemActivated, this,
            [this](QTreeWidgetItem* item) { Mend(indexOfTopLevelItem(item)); });
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const int row = item ? indexOfTopLevelItem(item) : -1;
        if (row >= 0 && rows.at(row).id != 0)
            emit Selected(rows.at(row).id);
    });
}

void FindingsList::Mend(int row)
{
    const Row mended = rows.value(row, {0, {}});
    if (mended.fix.change)
        emit Mended(mended.id, mended.fix.words, mended.fix.change);
}

void FindingsList::Show(const QList<Finding>& findings, const Sign& sign)
{
    QSignalBlocker blocker(this);
    clear();
    rows.clear();
    for (const Finding& finding : findings) {
        const int index = TextOf(finding, sign);
        Row row{0, {}};
        QString title;
        if (index >= 0) {
            row.id = sign.texts.at(index).id;
            row.fix = FixFor(finding, sign.texts.at(index), sign.display);
            title = sign.texts.at(index).Title();
        }
        const Rule& rule = finding.GetRule();
        const bool isError = rule.severity == Severity::Error;
        const QString place = finding.place.section(QLatin1Char('.'), -1);
        auto* item = new QTreeWidgetItem(
            this,
            {tr("%1: found %2, expected %3").arg(place, finding.found, finding.expected), title});
        item->setIcon(What, Icon(isError ? QStringLiteral("dialog-error")
                                         : QStringLiteral("dialog-warning")));
        const QString why = QLatin1String(rule.why);
        for (int column : {What, Where})
            item->setToolTip(column, QStringLiteral("%1\n%2").arg(why, finding.place));
        item->setData(What, Qt::AccessibleDescriptionRole, why);
        item->setForeground(Where, Quiet(palette()));
        rows.append(row);
        if (row.fix.change) {
            auto* button = new QPushButton(row.fix.words);
            button->setToolTip(why);
            setItemWidget(item, Help, button);
            connect(button, &QPushButton::clicked, this,
                    [this, item] { Mend(indexOfTopLevelItem(item)); });
        }
    }
    blocker.unblock();
    emit CountChanged(Count());
}

} // namespace AnimText
