#include "studio/window/motion/thumbnails.h"

#include <algorithm>

namespace AnimText::studio::window::motion {
namespace {

constexpr int plainEffect = 4; // shown before a neon background: Typewriter
constexpr int loopTicks = 90;  // of a thumbnail, with the hold at its end
constexpr int neonTicks = 30;
constexpr int shownUnits = 12; // first UTF-16 units of the text
constexpr int quickSpeed = 7;

/** The start of @p text in a thumbnail's size, with another motion or a neon background. */
model::SignText Sample(model::SignText text, int shown)
{
    const bool neon = shown >= neonThumbnails;
    const bool scroll = !neon && shown >= scene::Effects().size();
    const int number = neon ? plainEffect : scroll ? shown - scene::Effects().size() : shown;
    layout::StyledText& styled = text.source.text;
    int units = std::min(shownUnits, int(styled.text.size()));
    if (units > 0 && styled.text.at(units - 1).isHighSurrogate())
        --units;
    styled.text.truncate(units);
    if (styled.text.trimmed().isEmpty())
        styled.text = Thumbnails::tr("Text");
    while (styled.runs.size() > 1 && styled.runs.last().begin >= styled.text.size())
        styled.runs.removeLast();
    text.source.fit = layout::Fit::Both;
    text.source.padding = 2;
    text.source.align = layout::Align::Center;
    text.source.valign = layout::VAlign::Middle;
    if (scroll)
        text.source.fit = layout::Fit::Height;
    const QColor color = styled.runs.first().color;
    for (layout::StyleRun& run : styled.runs)
        run.color = color;
    scene::SceneNode node;
    node.size = thumbnailSize;
    node.hold = 10;
    const scene::NodeMotion motion{scroll ? scene::Mode::Scroll : scene::Mode::Entrance, number};
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

Thumbnails::Thumbnails(const QString& plugin, QObject* parent)
    : QObject(parent)
    , link(plugin, worker::WorkerLink::Haste::None)
{
    connect(&link, &worker::WorkerLink::Answered, this, &Thumbnails::TakeAnswer);
    connect(&link, &worker::WorkerLink::Died, this, &Thumbnails::Finish);
    pool.setMaxThreadCount(1);
}

Thumbnails::~Thumbnails()
{
    pool.waitForDone();
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

QImage Thumbnails::Picture(int motion, int tick)
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
    Loop& loop = loops[current];
    if (currentText == textNumber) {
        loop.pictures = made;
        loop.text = textNumber;
    }
    current = -1;
    Next();
}

} // namespace AnimText::studio::window::motion
