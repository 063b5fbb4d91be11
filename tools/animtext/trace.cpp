#include "animtext/commands.h"
#include "animtext/opening.h"

#include <QCryptographicHash>

namespace AnimText {

namespace {

/** The rows of the picture without what pads them. */
QByteArray Sha1(const QImage& picture)
{
    if (picture.isNull())
        return QByteArray();
    QCryptographicHash hash(QCryptographicHash::Sha1);
    const int bytesPerRow = picture.width() * picture.depth() / 8;
    for (int y = 0; y < picture.height(); ++y)
        hash.addData(reinterpret_cast<const char*>(picture.constScanLine(y)), bytesPerRow);
    return hash.result().toHex();
}

/** What a node's text layer shows, kept while it stays the same. */
struct Shown
{
    QSize size{0, 0};
    QByteArray sha1;
};

class Trace
{
public:
    explicit Trace(Player* player)
        : player(player)
        , shown(player->NodeCount())
    {
    }

    QByteArray TickLines();

private:
    QByteArray Line(int node);

    Player* player;
    QVector<Shown> shown;
};

QByteArray Trace::Line(int node)
{
    const int layer = player->Scenery().TextLayer(node);
    if (player->Swapped(node) || player->Tick() == 0) {
        const QImage picture = player->TextPicture(node);
        shown[node] = {picture.size(), Sha1(picture)};
    }
    const QSize size = shown.at(node).size;
    return "{\"tick\":" + QByteArray::number(player->Tick()) +
           ",\"ms\":" + QByteArray::number(player->Time()) +
           ",\"node\":" + QByteArray::number(node) +
           ",\"swap\":" + (player->Swapped(node) ? "true" : "false") +
           ",\"layer\":" + QByteArray::number(layer < 0 ? 0 : layer) +
           ",\"w\":" + QByteArray::number(size.width()) +
           ",\"h\":" + QByteArray::number(size.height()) + ",\"sha1\":\"" + shown.at(node).sha1 +
           "\",\"state\":" + QByteArray::number(player->State(node)) + "}\n";
}

QByteArray Trace::TickLines()
{
    QByteArray lines;
    for (const QString& call : player->Scenery().TakeCalls())
        lines += call.toUtf8() + '\n';
    for (int node = 0; node < player->NodeCount(); ++node)
        lines += Line(node);
    return lines;
}

} // namespace

int RunTrace(const QStringList& words)
{
    CommandLine line(
        QStringLiteral("trace"), QStringLiteral("SCENE.json"),
        QStringLiteral(
            "Plays a scene on virtual time and prints a line of JSON for each tick of 66 ms and "
            "each node, tick 0 being the start: whether a new picture of the text was handed to "
            "the display, the layer that shows it, its size, the SHA-1 of its rows and the "
            "renderer's state (0 finished, 1 playing, 2 nothing to play)."));
    line.AddOption({QStringLiteral("n"), QStringLiteral("ticks")}, QStringLiteral("The last tick."),
                   QStringLiteral("N"), QStringLiteral("100"));
    line.AddOption({QStringLiteral("calls")},
                   QStringLiteral("Prints every call of the device before the line of its tick."));
    AddPlayOptions(&line);
    int ticks = 0;
    if (!line.Parse(words, 1, 1))
        return line.ExitStatus();
    if (!line.Number(QStringLiteral("ticks"), 0, 1000000000, &ticks))
        return BadInput;

    Scene scene;
    Playing playing;
    if (const Status status = OpenSceneAndPlugin(&line, &scene, &playing))
        return status;
    const std::unique_ptr<Player> player = playing.Load(scene);
    if (!player)
        return BadInput;

    player->Scenery().KeepCalls(line.IsSet(QStringLiteral("calls")));
    player->Start(playing.seed);
    Trace trace(player.get());
    for (;;) {
        if (!Print(trace.TickLines()))
            return Fail(FailedRun, QStringLiteral("the output cannot be written"));
        if (player->Tick() == ticks)
            return Done;
        player->Advance();
    }
}

} // namespace AnimText
