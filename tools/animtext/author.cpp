#include "author/author.h"
#include "author/destination.h"

#include "animtext/commands.h"
#include "animtext/shared/authoroptions.h"
#include "animtext/shared/cutoff.h"
#include "animtext/shared/savescene.h"
#include "cli/interruption.h"
#include "files/wholefile.h"
#include "scene/catalog.h"
#include "validate/validate.h"

#include <QFileInfo>

namespace AnimText {

namespace {

constexpr int mostListed = 5;   // characters, or words, that are listed
constexpr int longestWord = 40; // characters of a word that are shown

void WarnOfUnseen(const QList<UnseenCharacter>& unseen, const QString& text)
{
    for (const UnseenCharacter& character : unseen.mid(0, mostListed)) {
        const QString code = QString::number(character.codePoint, 16).toUpper();
        const bool isMark = QChar::category(character.codePoint) <= QChar::Mark_Enclosing;
        Warn(QStringLiteral("character %1, \"%2\" (U+%3), %4: %5")
                 .arg(text.left(character.index).toUcs4().size() + 1)
                 .arg(QString::fromUcs4(&character.codePoint, 1),
                      code.rightJustified(4, QLatin1Char('0')),
                      isMark ? QStringLiteral("is left out") : QStringLiteral("leaves a gap"),
                      character.missing ? QStringLiteral("no installed font has it")
                                        : QStringLiteral("its font has a picture, no outline")));
    }
    if (unseen.size() > mostListed)
        Warn(QStringLiteral("%1 more characters leave gaps").arg(unseen.size() - mostListed));
}

/** Warns of words that are split and letters that are cut off. */
void WarnOfLosses(const AuthoredNode& authored)
{
    QStringList words;
    for (const QString& word : authored.tornWords.mid(0, mostListed))
        words.append(word.size() > longestWord ? word.left(longestWord) + QStringLiteral("...")
                                               : word);
    if (!words.isEmpty())
        Warn(QStringLiteral("%1 wider than a page and split: %2%3")
                 .arg(authored.tornWords.size() == 1
                          ? QStringLiteral("a word is")
                          : QStringLiteral("%1 words are").arg(authored.tornWords.size()),
                      words.join(QStringLiteral(", ")),
                      authored.tornWords.size() > mostListed ? QStringLiteral(" ...") : QString()));
    if (authored.cutAbove > 0 || authored.cutBelow > 0)
        Warn(QStringLiteral("letters are cut off: %1 pixels above the area, %2 pixels below; --fit "
                            "height avoids this")
                 .arg(authored.cutAbove)
                 .arg(authored.cutBelow));
}

/** Prints what validate finds, except what WarnOfUnseen() and WarnOfLosses() say better. */
void WarnOfFindings(const QString& path)
{
    for (const Finding& finding : ValidateScene(path)) {
        const bool isIntended = finding.mistake == Mistake::AreasOverlap;
        if (finding.mistake != Mistake::OutlineEmpty && finding.mistake != Mistake::TextHigh &&
            !isIntended)
            Warn(finding.Line());
    }
}

void WarnOfCutOff(const QString& path, const AuthoredNode& authored)
{
    Scene scene;
    scene.path = path;
    scene.display = authored.node.size;
    SceneNode node = authored.node;
    node.files[QStringLiteral("DescentVector")] =
        DataFileName(RealPath(path), authored.descentFile, QStringLiteral("descent"));
    node.files[QStringLiteral("PathData")] =
        DataFileName(RealPath(path), authored.pathFile, QStringLiteral("path"));
    WarnOfCut(scene, node);
}

QByteArray Summary(const QString& path, const AuthorOptions& options, const AuthoredNode& authored)
{
    const SceneNode& node = authored.node;
    const QHash<QString, QString> style = node.lists.value(QStringLiteral("TextAttribute")).first();
    const QString pages = authored.pages == 1 ? QStringLiteral("one page")
                                              : QStringLiteral("%1 pages").arg(authored.pages);
    const auto number = [](int value) { return QString::number(value); };
    const int count = options.text.toUcs4().size();
    return QStringLiteral("Wrote %1: %2 in %3, %4 x %5 pixels; %6, %7 of %8 x %9\n")
        .arg(path,
             count == 1 ? QStringLiteral("one character")
                        : QStringLiteral("%1 characters").arg(count),
             style.value(QStringLiteral("fontName")), number(authored.textSize.width()),
             number(authored.textSize.height()), QLatin1String(options.motion.Row()->name),
             options.motion.IsScroll() ? QStringLiteral("an area") : pages,
             number(node.size.width()), number(node.size.height()))
        .toUtf8();
}

/** Whether the other texts of an existing scene are kept. */
bool Adds(const CommandLine& line)
{
    return line.IsSet("append") || line.IsSet("page") || line.IsSet("in-area") ||
           line.IsSet("replace");
}

/** Where the text goes. In an existing area, @p options get its size and position by default. */
Destination ReadDestination(const CommandLine& line, const QString& path, AuthorOptions* options)
{
    Destination destination;
    if (line.IsSet("display"))
        destination.display = line.Size("display");
    if (line.IsSet("page"))
        destination.page = line.Number("page");
    if (line.IsSet("in-area"))
        destination.area = line.Number("in-area");
    if (line.IsSet("replace"))
        destination.instead = line.Value("replace");
    if (!destination.instead.isEmpty() && (line.IsSet("page") || line.IsSet("in-area")))
        throw Misuse{QStringLiteral("--replace cannot be combined with --page or --in-area")};
    if (line.IsSet("replace") && destination.instead.isEmpty())
        throw Misuse{QStringLiteral("--replace is empty; expected PLACE")};
    if (line.IsSet("overwrite") && Adds(line))
        throw Misuse{QStringLiteral("--overwrite cannot be combined with --append, --page, "
                                    "--in-area or --replace")};
    if (line.IsSet("in-area") && !line.IsSet("area")) {
        Scene scene;
        QString error;
        if (!ReadScene(path, &scene, &error, MissingFiles::AreAccepted))
            throw Failure{BadInput, error};
        for (const Place& place : scene.Places()) {
            if (place.page + 1 == destination.page && place.area + 1 == destination.area) {
                options->area = scene.At(place).size;
                if (!line.IsSet("pos"))
                    options->pos = scene.At(place).pos;
                break;
            }
        }
    }
    return destination;
}

int WriteScene(const CommandLine& line)
{
    QStringList notes;
    const QString path = line.Value("output");
    AuthorOptions options = ReadOptions(line, &notes);
    const Destination destination = ReadDestination(line, path, &options);
    for (const QString& note : notes)
        Warn(note);

    QString error;
    AuthoredNode authored;
    if (!AuthorNode(options, &authored, &error))
        throw Failure{BadInput, error};
    WatchForInterruption();
    const auto change = [&](Scene* scene, DataFiles* dataFiles, QString* why) {
        if (!Adds(line)) {
            const int texts = scene->Nodes().size();
            if (texts > 1 && !line.IsSet("overwrite")) {
                *why = QStringLiteral("%1 has %2 texts; use --replace PLACE to replace one, "
                                      "--append to add one, or --overwrite to replace all")
                           .arg(path)
                           .arg(texts);
                return false;
            }
            scene->pages.clear();
            scene->display = QSize();
            scene->alphaBlend = true;
        }
        if (line.IsSet("no-alpha"))
            scene->alphaBlend = false;
        return PutAuthored(authored, destination, scene, dataFiles, why);
    };
    SaveScene(path, change);
    WarnOfUnseen(authored.unseen, options.text);
    WarnOfLosses(authored);
    WarnOfFindings(path);
    WarnOfCutOff(path, authored);
    Print(Summary(path, options, authored));
    return Done;
}

} // namespace

Command AuthorCommand()
{
    return {
        "author",
        "lay out a text and write a scene that shows it",
        "",
        0,
        0,
        "Lays out the text of --text or --text-file and writes a scene that shows it, with data "
        "files beside the scene. An existing scene with one text is replaced.",
        LayoutOptions(),
        WriteScene,
        {"animtext author --text \"Platform 4\" --effect SwingEffect -o sign.json",
         "animtext author --text \"Mind the gap\" --scroll left --page 2 -o sign.json"}};
}

} // namespace AnimText
