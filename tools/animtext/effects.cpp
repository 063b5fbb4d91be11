#include "animtext/commands.h"
#include "animtext/messages.h"
#include "animtext/opening.h"

#include "author/glyphfiles.h"
#include "player/playlength.h"
#include "player/plugin.h"
#include "scene/catalogue.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace AnimText {

namespace {

// The text that effects are measured with: one page of eight characters, without a hold.
constexpr int characters = 8;
constexpr int characterWidth = 24;
constexpr int characterHeight = 32;
constexpr int descent = 8;
constexpr int measuredSpeed = 5;
const QSize area(256, 64);

bool WriteFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/** A scene that plays the measured text once, with data files in @p folder. */
bool MeasuredScene(const QTemporaryDir& folder, Scene* scene)
{
    QPainterPath glyph;
    glyph.addRect(2, descent - characterHeight, characterWidth - 4, characterHeight);
    if (!WriteFile(folder.filePath(QStringLiteral("paths")),
                   PathFile(QVector<QPainterPath>(characters, glyph))) ||
        !WriteFile(folder.filePath(QStringLiteral("descents")),
                   DescentFile(QVector<int>(characters, descent))))
        return false;

    SceneNode node;
    node.size = area;
    node.attributes = {{QStringLiteral("Text"), QString(characters, QLatin1Char('x'))},
                       {QStringLiteral("AnimationSpeed"), measuredSpeed},
                       {QStringLiteral("ContinueSpeed"), measuredSpeed},
                       {QStringLiteral("PlayTimes"), 1}};
    const auto rows = [](const QString& field, int value) {
        QList<QHash<QString, QString>> list;
        for (int i = 0; i < characters; ++i)
            list.append({{field, QString::number(value)}});
        return list;
    };
    node.lists = {
        {QStringLiteral("TextWidth"), rows(QStringLiteral("text_width"), characterWidth)},
        {QStringLiteral("TextHeight"), rows(QStringLiteral("text_height"), characterHeight)}};
    node.files = {{QStringLiteral("PathData"), QStringLiteral("paths")},
                  {QStringLiteral("DescentVector"), QStringLiteral("descents")}};
    scene->path = folder.filePath(QStringLiteral("measured.json"));
    scene->display = area;
    scene->pages = {ScenePage{{SceneArea{{node}}}}};
    return true;
}

/** Ticks of one run of one page; negative where the play is not the plugin's or has no end. */
int TicksPerPage(const Playing& playing, Scene scene, int mode, const Motion& motion)
{
    SceneNode& node = scene.pages.first().areas.first().nodes.first();
    node.attributes[QStringLiteral("EffectType")] = mode;
    node.attributes[QStringLiteral("AnimationEffect")] = motion.number;
    node.attributes[QStringLiteral("ContinueStyle")] = motion.number;
    const std::unique_ptr<Player> player = playing.Load(scene);
    if (!player)
        return -1;
    const NodePlay play = PlayToEnd(player.get(), LongestPlay(scene), playing.seed).value(0);
    if (play.ending != Ending::Finishes)
        return -1;
    return play.frames * qMax(1, play.ticksPerFrame);
}

struct Measured
{
    Motion motion;
    int ticks;
};

QList<Measured> Measure(const Playing& playing, const QList<Motion>& motions, int mode)
{
    // Only the time is asked for, not what a picture may lack.
    const Silence silence;
    QTemporaryDir folder;
    Scene scene;
    const bool measurable = playing.plugin && folder.isValid() && MeasuredScene(folder, &scene);
    QList<Measured> measured;
    for (const Motion& motion : motions) {
        measured.append({motion, measurable ? TicksPerPage(playing, scene, mode, motion) : -1});
    }
    return measured;
}

QJsonArray ToJson(const QList<Measured>& list)
{
    QJsonArray array;
    for (const Measured& entry : list) {
        array.append(QJsonObject{{QStringLiteral("number"), entry.motion.number},
                                 {QStringLiteral("name"), QLatin1String(entry.motion.name)},
                                 {QStringLiteral("family"), QLatin1String(entry.motion.family)},
                                 {QStringLiteral("summary"), QLatin1String(entry.motion.summary)},
                                 {QStringLiteral("ticksPerPage"),
                                  entry.ticks < 0 ? QJsonValue() : QJsonValue(entry.ticks)}});
    }
    return array;
}

QByteArray ToTable(const QList<Measured>& list)
{
    QByteArray table;
    for (const Measured& entry : list) {
        const QByteArray ticks =
            entry.ticks < 0 ? QByteArray("-") : QByteArray::number(entry.ticks);
        table += QByteArray::number(entry.motion.number).rightJustified(3) + "  " +
                 QByteArray(entry.motion.name).leftJustified(36) +
                 QByteArray(entry.motion.family).leftJustified(19) + ticks.rightJustified(5) +
                 "  " + entry.motion.summary + '\n';
    }
    return table;
}

} // namespace

int RunEffects(const QStringList& words)
{
    CommandLine line(QStringLiteral("effects"), QString(),
                     QStringLiteral("Lists the entrance effects and the scrolls, and the ticks of "
                                    "66 ms that a page takes at speed 5, measured by playing a "
                                    "page of %1 characters in %2 × %3 pixels.")
                         .arg(characters)
                         .arg(area.width())
                         .arg(area.height()));
    line.AddOption({QStringLiteral("json")}, QStringLiteral("Writes JSON."));
    AddPlayOptions(&line);
    if (!line.Parse(words, 0, 0))
        return line.ExitStatus();
    Playing playing;
    if (const Status status = OpenPlugin(&line, &playing))
        return status;

    const QList<Measured> effects = Measure(playing, Effects(), 0);
    const QList<Measured> scrolls = Measure(playing, Scrolls(), 1);
    QByteArray text;
    if (line.IsSet(QStringLiteral("json"))) {
        text = QJsonDocument(QJsonObject{{QStringLiteral("effects"), ToJson(effects)},
                                         {QStringLiteral("scrolls"), ToJson(scrolls)}})
                   .toJson();
    } else {
        text = " no  effect                              family             ticks  motion\n" +
               ToTable(effects) +
               "\n no  scroll                              family             ticks  motion\n" +
               ToTable(scrolls);
    }
    return Print(text) ? Done : FailedRun;
}

} // namespace AnimText
