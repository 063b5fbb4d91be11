#include "author/author.h"
#include "author/destination.h"

#include "animtext/commands.h"
#include "animtext/shared/authoroptions.h"
#include "animtext/shared/cutoff.h"
#include "animtext/shared/savescene.h"
#include "cli/filenames.h"
#include "cli/interruption.h"
#include "files/wholefile.h"
#include "scene/catalogue.h"
#include "validate/validate.h"

#include <QFileInfo>

namespace AnimText {

namespace {

constexpr int mostListed = 5;   // characters, or words, that are listed
constexpr int longestWord = 40; // characters of a word that are shown

/** Says which characters the sign will not show. */
void TellUnseen(const QList<UnseenCharacter>& unseen, const QString& text)
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

/** Says what of the letters will not be seen as it should. */
void TellLosses(const AuthoredNode& authored)
{
    QStringList words;
    for (const QString& word : authored.tornWords.mid(0, mostListed))
        words.append(word.size() > longestWord ? word.left(longestWord) + QStringLiteral("...")
                                               : word);
    if (!words.isEmpty())
        Warn(QStringLiteral("%1 wider than a page and torn: %2%3")
                 .arg(authored.tornWords.size() == 1
                          ? QStringLiteral("a word is")
                          : QStringLiteral("%1 words are").arg(authored.tornWords.size()),
                      words.join(QStringLiteral(", ")),
                      authored.tornWords.size() > mostListed ? QStringLiteral(" ...") : QString()));
    if (authored.cutAbove > 0 || authored.cutBelow > 0)
        Warn(QStringLiteral("letters are cut off: %1 pixels above the area and %2 below; --fit "
                            "height makes them fit")
                 .arg(authored.cutAbove)
                 .arg(authored.cutBelow));
}

/** Says what validating would, but for what was told by the letters themselves. */
void TellFindings(const QString& path)
{
    for (const Finding& finding : ValidateScene(path)) {
        const bool wasPlaced = finding.mistake == Mistake::AreasOverlap; // by who gave its place
        if (finding.mistake != Mistake::OutlineEmpty && finding.mistake != Mistake::TextHigh &&
            !wasPlaced)
            Warn(finding.Line());
    }
}

/** Says how much of the text the host takes away before it is shown. */
void TellCut(const QString& path, const AuthoredNode& authored)
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
    return QStringLiteral("%1: %2 of %3, %4 x %5 pixels; %6 in %7 of %8 x %9\n")
        .arg(path,
             count == 1 ? QStringLiteral("one character")
                        : QStringLiteral("%1 characters").arg(count),
             style.value(QStringLiteral("fontName")), number(authored.textSize.width()),
             number(authored.textSize.height()), QLatin1String(options.motion.Row()->name),
             options.motion.IsScroll() ? QStringLiteral("an area") : pages,
             number(node.size.width()), number(node.size.height()))
        .toUtf8();
}

/** The scene file to write. */
QString ScenePath(const CommandLine& line)
{
    const QString path = line.Value("output");
    if (!IsUtf8(path))
        throw Misuse{QStringLiteral("%1: expected UTF-8, for the scene names its data files after "
                                    "itself")
                         .arg(path)};
    return path;
}

/** Whether the texts of a scene that is there stay. */
bool Adds(const CommandLine& line)
{
    return line.IsSet("append") || line.IsSet("page") || line.IsSet("in-area") ||
           line.IsSet("replace");
}

/** Where the text goes; its area is that of the text beside which it comes, unless one was given.
 */
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
        throw Misuse{QStringLiteral("--replace excludes --page and --in-area")};
    if (line.IsSet("replace") && destination.instead.isEmpty())
        throw Misuse{QStringLiteral("--replace takes PLACE, not an empty word")};
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
    const QString path = ScenePath(line);
    AuthorOptions options = ReadWishes(line, &notes);
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
                *why = QStringLiteral("%1 has %2 texts: --replace PLACE changes one of them, "
                                      "--append adds one, --overwrite leaves only the new one")
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
    TellUnseen(authored.unseen, options.text);
    TellLosses(authored);
    TellFindings(path);
    TellCut(path, authored);
    Print(Summary(path, options, authored));
    return Done;
}

} // namespace

Command AuthorCommand()
{
    return {"author",
            "lays a text out and writes the scene that shows it",
            "",
            0,
            0,
            "Lays a text out and writes the scene that shows it, with its data files beside it. "
            "The text is --text TEXT or --text-file FILE.",
            WishOptions(),
            WriteScene};
}

} // namespace AnimText
