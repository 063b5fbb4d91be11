#include "studio/window/motion/thumbnails.h"

#include <QPainter>

#include <algorithm>

namespace AnimText::studio::window::motion {
namespace {

constexpr int plainEffect = 4; // shown before a neon background: Typewriter
constexpr int loopTicks = 90;  // of a thumbnail, with the hold at its end
constexpr int neonTicks = 30;
constexpr int shownUnits = 12; // first UTF-16 units of the text
constexpr int quickSpeed = 7;
constexpr double faint = 0.4; // a picture of an earlier text

/** The start of @p text in a thumbnail's size, with another motion or a neon background. */
model::SignText Sample(model::SignText text, int shown)
{
    const bool neon = shown >= neonThumbnails;
    const scene::NodeMotion motion =
        neon ? scene::NodeMotion{scene::Mode::Entrance, plainEffect} : MotionOfRow(shown);
    layout::StyledText& styled = text.source.text;
    int units = std::min(shownUnits, int(styled.text.size()));
    if (units > 0 && styled.text.at(units - 1).isHighSurrogate())
        --units;
    styled.text.truncate(units);
    if (styled.text.trimmed().isEmpty())
        styled.text = Thumbnails::tr("Text");
    while (styled.runs.size() > 1 && styled.runs.last().begin >= styled.text.size())
        styled.runs.removeLast();
    text.source.fit = motion.IsScroll() ? layout::Fit::Height : layout::Fit::Both;
    text.source.padding = 2;
    text.source.align = layout::Align::Center;
    text.source.valign = layout::VAlign::Middle;
    const QColor color = styled.runs.first().color;
    for (layout::StyleRun& run : styled.runs)
        run.color = color;
    scene::SceneNode node;
    node.size = thumbnailSize;
    node.hold = 10;
    node.attributes = {{"PlayTimes", 1},
                       {motion.SpeedKey(), quickSpeed},
                       {"Hollow", text.node.attributes.value("Hollow", 0)}};
    scene::SetMotion(&node, motion);
    if (neon) {
        node.hold = neonTicks;
        node.neonEffect = shown - neonThumbnails;
        node.attributes["CheckNeonBg"] = 1;
    }
    text.node = node;
    text.page = 0;
    text.area = 0;
    return text;
}

} // namespace

scene::NodeMotion MotionOfRow(int row)
{
    const int effects = scene::Effects().size();
    if (row < effects)
        return {scene::Mode::Entrance, row};
    return {scene::Mode::Scroll, row - effects};
}

QIcon LitIcon(const QImage& picture, double opacity)
{
    QPixmap lit(thumbnailSize);
    lit.fill(Qt::black);
    QPainter painter(&lit);
    painter.setOpacity(opacity);
    painter.drawImage(0, 0, picture);
    painter.end();
    QIcon icon(lit);
    icon.addPixmap(lit, QIcon::Selected); // in its own colors, too
    return icon;
}

Thumbnails::Thumbnails(const QString& plugin, QObject* parent)
    : QObject(parent)
    , link(plugin, worker::WorkerLink::Haste::None)
{
    connect(&link, &worker::WorkerLink::Answered, this, &Thumbnails::TakeAnswer);
    connect(&link, &worker::WorkerLink::Died, this, &Thumbnails::Finish);
    connect(&beat, &QTimer::timeout, this, [this] { ++tick; });
    beat.start(player::tickLength);
    pool.setMaxThreadCount(1);
}

void Thumbnails::Animate(QAbstractItemView* view, int motion, int count)
{
    connect(&beat, &QTimer::timeout, view, [=] {
        const QRegion seen = view->viewport()->visibleRegion();
        if (seen.isEmpty() || view->window()->isMinimized())
            return;
        for (int row = 0; row < count; ++row) {
            const QModelIndex index = view->model()->index(row, 0);
            if (!seen.intersects(view->visualRect(index)))
                continue;
            const QImage picture = Picture(motion + row);
            if (picture.isNull())
                continue;
            const bool isCurrent = loops.value(motion + row).text == textNumber;
            const QIcon icon = LitIcon(picture, isCurrent ? 1 : faint);
            view->model()->setData(index, icon, Qt::DecorationRole);
            view->model()->setData(index, isCurrent, currentRole);
        }
    });
}

void Thumbnails::SetText(const model::SignText& next)
{
    if (next.source == text.source && next.id == text.id &&
        next.node.attributes.value("Hollow") == text.node.attributes.value("Hollow"))
        return;
    text = next;
    ++textNumber;
    waiting.clear();
}

/** The picture of @p motion at this tick of its loop; null until the worker has painted it. */
QImage Thumbnails::Picture(int motion)
{
    if (textNumber == 0)
        return {};
    Loop& loop = loops[motion];
    if (loop.asked != textNumber) {
        loop.asked = textNumber;
        waiting.append(motion);
        Next();
    }
    return loop.pictures.isEmpty() ? QImage() : loop.pictures.at(tick % loop.pictures.size());
}

void Thumbnails::Next()
{
    if (current >= 0 || waiting.isEmpty())
        return;
    current = waiting.takeFirst();
    currentText = textNumber;
    made.clear();
    pool.start([this, motion = current, from = text, of = ++generation] {
        model::SignText sample = Sample(from, motion);
        sample.layoutKey = model::LayoutKey(sample);
        sample.layout = model::MakeLayout(sample);
        model::Sign sign;
        sign.display = thumbnailSize;
        sign.texts = {sample};
        QString error;
        const scene::Scene scene = folder.Put(sign, -1, &error);
        if (!error.isEmpty()) { // the window reports it
            QMetaObject::invokeMethod(this, &Thumbnails::Finish);
            return;
        }
        worker::Order order;
        order.generation = of;
        order.scene = scene::SceneToJson(scene);
        order.path = scene.path;
        order.last = (motion >= neonThumbnails ? neonTicks : loopTicks) - 1;
        QMetaObject::invokeMethod(this, [this, order, layout = sample.layout] {
            playing = layout;
            link.Send(order);
        });
    });
}

void Thumbnails::TakeAnswer(const worker::Answer& answer)
{
    if (answer.generation != generation || current < 0)
        return;
    if (answer.kind == worker::Answer::Picture)
        made.append(answer.picture);
    if (answer.kind == worker::Answer::Idle || !answer.error.isEmpty())
        Finish();
}

void Thumbnails::Finish()
{
    if (current < 0)
        return;
    if (currentText == textNumber)
        loops.insert(current, {made, textNumber, textNumber});
    current = -1;
    Next();
}

} // namespace AnimText::studio::window::motion
