#include "author/authorscene.h"

#include "animtext/commands.h"
#include "animtext/shared/authoroptions.h"
#include "animtext/shared/cutoff.h"
#include "animtext/shared/savescene.h"
#include "cli/interruption.h"

namespace AnimText::animtext {

namespace {

constexpr int mostListed = 5;   // characters, or words, that are listed
constexpr int longestWord = 40; // characters of a word that are shown

void WarnOfUnseen(const layout::LaidOut& text)
{
    for (const layout::UnseenCharacter& character : text.unseen.mid(0, mostListed)) {
        const QString code = QString::number(character.codePoint, 16).toUpper();
        const bool isMark = QChar::category(character.codePoint) <= QChar::Mark_Enclosing;
        cli::Warn(QStringLiteral("character %1, \"%2\" (U+%3), %4: %5")
                      .arg(text.styled.text.left(character.index).toUcs4().size() + 1)
                      .arg(QString::fromUcs4(&character.codePoint, 1),
                           code.rightJustified(4, QLatin1Char('0')),
                           isMark ? "is left out" : "leaves a gap",
                           character.missing ? "no installed font has it"
                                             : "its font has a picture, no outline"));
    }
    if (text.unseen.size() > mostListed)
        cli::Warn(
            QStringLiteral("%1 more characters leave gaps").arg(text.unseen.size() - mostListed));
}

/** Of words that are split and letters that are cut off. */
void WarnOfLosses(const layout::LaidOut& text)
{
    QStringList words;
    for (const QString& word : text.tornWords.mid(0, mostListed))
        words.append(word.size() > longestWord ? word.left(longestWord) + "..." : word);
    if (!words.isEmpty())
        cli::Warn(QStringLiteral("%1 wider than a page and split: %2%3")
                      .arg(text.tornWords.size() == 1
                               ? "a word is"
                               : QStringLiteral("%1 words are").arg(text.tornWords.size()),
                           words.join(", "),
                           text.tornWords.size() > mostListed ? " ..." : QString()));
    if (text.cutAbove > 0 || text.cutBelow > 0)
        cli::Warn(QStringLiteral("letters are cut off: %1 pixels above the area, %2 pixels "
                                 "below; --fit height avoids this")
                      .arg(text.cutAbove)
                      .arg(text.cutBelow));
}

/** Of what validate finds, except what is said better above and what is intended. */
void WarnOfFindings(const QList<validate::Finding>& findings)
{
    static const QList<validate::Mistake> unsaid{validate::Mistake::AreasOverlap,
                                                 validate::Mistake::OutlineEmpty,
                                                 validate::Mistake::TextHigh};
    for (const validate::Finding& finding : findings) {
        if (!unsaid.contains(finding.mistake))
            cli::Warn(finding.Line());
    }
}

QByteArray Summary(const QString& path, const author::AuthoredNode& text)
{
    const scene::SceneNode& node = text.node;
    const scene::NodeMotion motion = scene::MotionOf(node);
    const QString pages = text.pages == 1 ? "one page" : QStringLiteral("%1 pages").arg(text.pages);
    const auto number = [](int value) { return QString::number(value); };
    const int count = text.styled.text.toUcs4().size();
    return QStringLiteral("Wrote %1: %2 in %3, %4 x %5 pixels; %6, %7 of %8 x %9\n")
        .arg(path, count == 1 ? "one character" : QStringLiteral("%1 characters").arg(count),
             text.styled.runs.first().font.family(), number(text.size.width()),
             number(text.size.height()), QLatin1String(motion.Row()->name),
             motion.IsScroll() ? "an area" : pages, number(node.size.width()),
             number(node.size.height()))
        .toUtf8();
}

void WriteScene(const cli::CommandLine& line)
{
    author::AuthorRequest request = shared::ReadRequest(line);
    // Ctrl+C must not leave the data files of half a change.
    request.beforeSaving = cli::WatchForInterruption;
    author::AuthoredScene authored;
    QString error;
    const author::Storing storing = author::AuthorScene(request, &authored, &error);
    for (const QString& note : authored.notes)
        cli::Warn(note);
    shared::EndSaving(storing, authored.stored, error);
    WarnOfUnseen(authored.text);
    WarnOfLosses(authored.text);
    WarnOfFindings(authored.stored.findings);
    shared::WarnOfCut(authored.stored.scene, authored.stored.scene.At(authored.place));
    cli::Print(Summary(request.path, authored.text));
}

} // namespace

cli::Command AuthorCommand()
{
    return {
        "author",
        "lay out a text and write a scene that shows it",
        {},
        "Lays out the text of --text or --text-file and writes a scene that shows it, with data "
        "files beside the scene. An existing scene with one text is replaced.",
        shared::LayoutOptions(),
        WriteScene,
        {"animtext author --text \"Platform 4\" --effect SwingEffect -o sign.json",
         "animtext author --text \"Mind the gap\" --scroll left --page 2 -o sign.json"}};
}

} // namespace AnimText::animtext
