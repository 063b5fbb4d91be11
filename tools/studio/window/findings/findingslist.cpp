#include "studio/window/findings/findingslist.h"

#include "studio/window/basics/style.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace AnimText::studio::window::findings {
namespace {

constexpr int mostShown = 40;

/** Label of the field that @p finding is about; empty for none. */
QString FieldOf(const validate::Finding& finding)
{
    const QString key = form::KeyOf(finding);
    for (const scene::Attribute& attribute : scene::Attributes()) {
        if (key == QLatin1String(attribute.key))
            return scene::Translated(attribute.name);
    }
    return {};
}

/** The text that @p finding is about; null for none. */
const model::SignText* TextOf(const validate::Finding& finding, const model::Sign& sign)
{
    scene::Place place;
    if (!scene::ReadPlace(finding.place, &place))
        return nullptr;
    int behind = place.node;
    for (const model::SignText& text : sign.texts) {
        if (text.page == place.page && text.area == place.area && behind-- == 0)
            return &text;
    }
    return nullptr;
}

} // namespace

FindingsList::FindingsList(QWidget* parent)
    : QScrollArea(parent)
    , list(basics::Arrange(Qt::Vertical, 3 * basics::grid, {}, 2 * basics::grid))
{
    auto* content = new QWidget(this);
    content->setAutoFillBackground(true);
    content->setBackgroundRole(QPalette::Base);
    content->setLayout(list);
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(tr("Problems"));
    Show({}, {});
}

FindingsList::Fix FindingsList::FixFor(const validate::Finding& finding, const QSize& display)
{
    const auto set = [](const QString& words, const char* key, int value) {
        return Fix{words, [=](model::SignText* edited) {
                       edited->node.attributes[QLatin1String(key)] = value;
                   }};
    };
    const auto remove = [](const char* key, const char* other) {
        return Fix{tr("Remove"), [=](model::SignText* edited) {
                       edited->node.attributes.remove(QLatin1String(key));
                       edited->node.attributes.remove(QLatin1String(other));
                   }};
    };
    const auto fit = [](const QString& words, layout::Fit wanted) {
        return Fix{words, [=](model::SignText* edited) { edited->source.fit = wanted; }};
    };
    switch (finding.mistake) {
    case validate::Mistake::SpeedRange:
        return {tr("Use the nearest speed"), [](model::SignText* edited) {
                    QVariant& speed =
                        edited->node.attributes[scene::MotionOf(edited->node).SpeedKey()];
                    speed = qBound(0, speed.toInt(), 9);
                }};
    case validate::Mistake::PlaysRange: return set(tr("Play once"), "PlayTimes", 1);
    case validate::Mistake::HoldRange:
        return {tr("Remove the hold"), [](model::SignText* edited) { edited->node.hold = 0; }};
    case validate::Mistake::ModeUnknown: return set(tr("Use an entrance effect"), "EffectType", 0);
    case validate::Mistake::EffectUnknown: return set(tr("Use Typewriter"), "AnimationEffect", 4);
    case validate::Mistake::DirectionUnknown: return set(tr("Scroll left"), "ContinueStyle", 0);
    case validate::Mistake::AreaOutside:
        return {tr("Move onto the display"), [display](model::SignText* edited) {
                    scene::SceneNode& node = edited->node;
                    node.size = node.size.boundedTo(display);
                    node.pos.setX(qBound(0, node.pos.x(), display.width() - node.size.width()));
                    node.pos.setY(qBound(0, node.pos.y(), display.height() - node.size.height()));
                }};
    case validate::Mistake::FileMissing:
        if (form::KeyOf(finding) != QLatin1String("PathData") &&
            form::KeyOf(finding) != QLatin1String("DescentVector"))
            return {};
        [[fallthrough]];
    case validate::Mistake::DataMalformed:
    case validate::Mistake::DataLength:
    case validate::Mistake::DataSurplus:
    case validate::Mistake::OutlineMalformed:
    case validate::Mistake::ListLength:
    case validate::Mistake::ListSurplus:
    case validate::Mistake::RowValue:
        return {tr("Recreate the outlines"),
                [](model::SignText* edited) { edited->layout.reset(); }};
    case validate::Mistake::TextHigh: return fit(tr("Fit height"), layout::Fit::Height);
    case validate::Mistake::CharacterWide:
        return fit(tr("Fit height and width"), layout::Fit::Both);
    case validate::Mistake::ColorsIgnored:
        return {tr("Use the first color"), [](model::SignText* edited) {
                    QVector<layout::StyleRun>& runs = edited->source.text.runs;
                    for (layout::StyleRun& run : runs)
                        run.color = runs.first().color;
                }};
    case validate::Mistake::GradientIgnored:
    case validate::Mistake::PictureIgnored: return set(tr("Turn on dazzle"), "CheckDazzle", 1);
    case validate::Mistake::StrokeIgnored: return remove("Stroke", "StrokeColor");
    case validate::Mistake::ShadowIgnored: return remove("CheckShadowEffect", "TextShadowBox");
    default: return {};
    }
}

void FindingsList::ApplyFix(int index)
{
    const Row row = rows.at(index);
    if (!row.fix.change)
        return;
    emit Selected(row.id);
    emit Edited(row.fix.words, QString(), row.fix.change);
}

QList<validate::Finding> FindingsList::Of(int id) const
{
    QList<validate::Finding> own;
    for (const Row& row : rows) {
        if (row.id == id)
            own.append(row.finding);
    }
    return own;
}

void FindingsList::Show(const QList<validate::Finding>& findings, const model::Sign& sign)
{
    QList<Row> before = rows;
    rows.clear();
    for (const validate::Finding& finding : findings) {
        Row row;
        row.finding = finding;
        row.words = QCoreApplication::translate("Rules", finding.GetRule().why);
        const QString field = FieldOf(finding);
        if (!field.isEmpty())
            row.words = QStringLiteral("%1: %2").arg(field, row.words);
        row.why =
            tr("Found %1, expected %2.\n%3").arg(finding.found, finding.expected, finding.place);
        if (const model::SignText* text = TextOf(finding, sign)) {
            row.id = text->id;
            row.fix = FixFor(finding, sign.display);
            if (sign.texts.size() > 1)
                row.words = QStringLiteral("%1 · %2").arg(text->Title(), row.words);
        }
        rows.append(row);
    }
    emit CountChanged(rows.size());
    const auto same = [](const Row& a, const Row& b) {
        return a.id == b.id && a.words == b.words && a.why == b.why && a.fix.words == b.fix.words;
    };
    if (std::equal(rows.begin(), rows.end(), before.begin(), before.end(), same) && list->count())
        return; // rebuilding would take the focus from a button
    while (QLayoutItem* item = list->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (int i = 0; i < std::min(int(rows.size()), mostShown); ++i)
        list->addWidget(MakeRow(i));
    if (rows.isEmpty() || rows.size() > mostShown) {
        auto* label =
            new QLabel(rows.isEmpty() ? tr("No problems found")
                                      : tr("And %n more", nullptr, rows.size() - mostShown));
        label->setWordWrap(true);
        list->addWidget(label);
        basics::SetInk(label, basics::Quiet(label->palette()));
    }
    list->addStretch(1);
    setMinimumWidth(list->minimumSize().width()); // no button is clipped, in any language
}

/** A row: the effect on the sign, a button for the fix, and the details as a tooltip. */
QWidget* FindingsList::MakeRow(int index)
{
    const Row& row = rows.at(index);
    auto* widget = new QWidget;
    auto* mark = new QLabel(widget);
    const bool isError = row.finding.GetRule().severity == validate::Severity::Error;
    mark->setPixmap(basics::Icon(isError ? "dialog-error" : "dialog-warning").pixmap(16, 16));
    auto* words = new QLabel(row.words, widget);
    words->setWordWrap(true);
    words->setToolTip(row.why);
    words->setAccessibleDescription(row.why);
    mark->setAlignment(Qt::AlignTop);
    auto* beside = basics::Arrange(Qt::Vertical, basics::grid, {words});
    auto* layout = basics::Arrange(Qt::Horizontal, 2 * basics::grid, {mark, beside});
    layout->setStretchFactor(beside, 1);
    widget->setLayout(layout);
    widget->installEventFilter(this);
    widget->setProperty("text", row.id);
    if (row.fix.change) {
        auto* button = new QPushButton(row.fix.words, widget);
        button->setAutoDefault(true); // Return presses it, as Space does
        button->setToolTip(row.why);
        beside->addWidget(button, 0, Qt::AlignLeft);
        connect(button, &QPushButton::clicked, this, [this, index] { ApplyFix(index); });
    }
    return widget;
}

bool FindingsList::eventFilter(QObject* object, QEvent* event)
{
    const int id = object->property("text").toInt();
    if (event->type() == QEvent::MouseButtonPress && id != 0)
        emit Selected(id);
    return QScrollArea::eventFilter(object, event);
}

} // namespace AnimText::studio::window::findings
