#include "author/author.h"
#include "author/places.h"

#include "animtext/commands.h"
#include "animtext/filenames.h"
#include "animtext/interruption.h"
#include "animtext/wishes.h"
#include "scene/catalogue.h"
#include "validate/validate.h"

#include <QFileInfo>

namespace AnimText {

namespace {

constexpr int mostUnseen = 5; // characters that are told one by one

/** Says which characters the sign will not show. */
void TellUnseen(const QList<UnseenCharacter>& unseen, const QString& text)
{
    for (const UnseenCharacter& character : unseen.mid(0, mostUnseen)) {
        const QString code = QString::number(character.codePoint, 16).toUpper();
        Warn(QStringLiteral("character %1, \"%2\" (U+%3), leaves a gap: %4")
                 .arg(text.leftRef(character.index).toUcs4().size() + 1)
                 .arg(QString::fromUcs4(&character.codePoint, 1),
                      code.rightJustified(4, QLatin1Char('0')),
                      character.missing ? QStringLiteral("no installed font has it")
                                        : QStringLiteral("its font has a picture, no outline")));
    }
    if (unseen.size() > mostUnseen)
        Warn(QStringLiteral("%1 more characters leave gaps").arg(unseen.size() - mostUnseen));
}

/** Says what validating would, but for the characters that leave gaps. */
void TellFindings(const QString& path)
{
    for (const Finding& finding : ValidateScene(path)) {
        if (finding.rule != RuleFor("outline-empty"))
            Warn(QStringLiteral("%1: found %2, expected %3. %4")
                     .arg(QLatin1String(finding.rule->code), finding.found, finding.expected,
                          QLatin1String(finding.rule->why)));
    }
}

QByteArray Summary(const QString& path, const AuthorOptions& options, const AuthoredNode& authored)
{
    const SceneNode& node = authored.node;
    const QHash<QString, QString> style = node.lists.value(QStringLiteral("TextAttribute")).first();
    const bool scrolls = options.mode == Mode::Scroll;
    const Motion& motion = (scrolls ? Scrolls() : Effects()).at(options.motion);
    const QString pages = authored.pages == 1 ? QStringLiteral("one page")
                                              : QStringLiteral("%1 pages").arg(authored.pages);
    const auto number = [](int value) { return QString::number(value); };
    const int count = options.text.toUcs4().size();
    return QStringLiteral("%1: %2 of %3, %4 x %5 pixels; %6 in %7 of %8 x %9\n")
        .arg(path,
             count == 1 ? QStringLiteral("one character")
                        : QStringLiteral("%1 characters").arg(count),
             style.value(QStringLiteral("fontName")), number(authored.textSize.width()),
             number(authored.textSize.height()), QLatin1String(motion.name),
             scrolls ? QStringLiteral("an area") : pages, number(node.size.width()),
             number(node.size.height()))
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

void Store(const QString& path, const SceneChange& change)
{
    QString error;
    const Storing storing = ChangeScene(path, change, &error);
    if (storing != Storing::Saved)
        throw Failure{storing == Storing::Refused ? BadInput : FailedRun, error};
}

int WriteScene(const CommandLine& line)
{
    QStringList notes;
    const QString path = ScenePath(line);
    const AuthorOptions options = ReadWishes(line, &notes);
    for (const QString& note : notes)
        Warn(note);

    QString error;
    AuthoredNode authored;
    if (!AuthorNode(options, &authored, &error))
        throw Failure{BadInput, error};
    WatchForInterruption();
    Destination destination;
    if (line.IsSet("display"))
        destination.display = line.Size("display");
    const auto change = [&](Scene* scene, DataFiles* dataFiles, QString* why) {
        if (!line.IsSet("append")) {
            scene->pages.clear();
            scene->display = QSize();
            scene->alphaBlend = true;
        }
        if (line.IsSet("no-alpha"))
            scene->alphaBlend = false;
        return PutAuthored(authored, destination, scene, dataFiles, why);
    };
    Store(path, change);
    TellUnseen(authored.unseen, options.text);
    TellFindings(path);
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
