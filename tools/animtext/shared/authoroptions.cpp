#include "animtext/shared/authoroptions.h"

#include "author/markup.h"
#include "cli/values.h"
#include "files/wholefile.h"
#include "layout/fonts.h"
#include "scene/catalogue.h"
#include "scene/times.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

#include <cstdio>

namespace AnimText {

namespace {

constexpr int standardSize = 48; // pixels, of marked text
constexpr int largestSide = 16384;
constexpr int longestTextFile = 1 << 20; // bytes of a file; its tags count too
constexpr int most = 1000000;            // plays, holds and the like
constexpr int lastDrawnNeon = 28;        // neon styles above show a picture

QString ReadText(const CommandLine& line)
{
    if (line.IsSet("text") == line.IsSet("text-file"))
        throw Misuse{line.IsSet("text")
                         ? QStringLiteral("--text and --text-file exclude each other")
                         : QStringLiteral("expected --text TEXT or --text-file FILE")};
    if (line.IsSet("text"))
        return line.Value("text");

    const QString name = line.Value("text-file");
    const bool isStandardInput = name == QLatin1String("-");
    QFile file(name);
    if (!(isStandardInput ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly)))
        throw Misuse{QStringLiteral("%1: cannot be read: %2").arg(name, file.errorString())};
    QByteArray bytes = ReadAtMost(&file, longestTextFile + 1);
    if (file.error() != QFileDevice::NoError)
        throw Misuse{QStringLiteral("%1: cannot be read: %2").arg(name, file.errorString())};
    if (bytes.size() > longestTextFile)
        throw Misuse{QStringLiteral("%1: expected a text of at most %2 bytes, found more")
                         .arg(name)
                         .arg(longestTextFile)};
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    const QString text = QString::fromUtf8(bytes);
    // What is not UTF-8 has become something else.
    if (text.toUtf8() != bytes)
        throw Misuse{QStringLiteral("%1: expected UTF-8; the text has other bytes").arg(name)};
    return text;
}

QFont ReadFont(const CommandLine& line)
{
    QString family;
    QString error;
    if (!FindFamily(line.Value("font"), &family, &error)) {
        if (line.IsSet("font") || FontFamilies().isEmpty())
            throw Misuse{error};
        family = QGuiApplication::font().family(); // the standard one is not installed here
    }
    QFont font(family);
    if (line.IsSet("size"))
        font.setPixelSize(line.Number("size"));
    font.setBold(line.IsSet("bold"));
    font.setItalic(line.IsSet("italic"));
    font.setUnderline(line.IsSet("underline"));
    return font;
}

/** Reads the text, with its marks, after the font, the color and the motion. */
void ReadStyledText(const CommandLine& line, AuthorOptions* options, QStringList* notes)
{
    const QString words = ReadText(line);
    QString error;
    StyledText text;
    StyleRun base{0, options->font, options->color};
    if (line.IsSet("markup")) {
        if (!line.IsSet("size"))
            base.font.setPixelSize(standardSize);
        if (!ParseMarkup(words, base, &text, notes, &error))
            throw Misuse{error};
        const bool isColumn = options->motion.IsScroll() && !options->motion.IsSideways();
        if (!line.IsSet("size") && !text.sized && !isColumn)
            options->fit = Fit::Height;
    } else {
        text.Append(words, base);
    }
    if (!ToOneLine(&text, notes, &error))
        throw Misuse{error};
    options->text = text.text;
    options->styles = text.runs;
}

void ReadPlacing(const CommandLine& line, AuthorOptions* options)
{
    if (line.IsSet("fit")) {
        options->fit = line.Choice("fit") == 0 ? Fit::Height : Fit::Both;
        if (line.IsSet("size") || !line.IsSet("area"))
            throw Misuse{QStringLiteral("--fit needs --area and excludes --size")};
        if (options->motion.IsScroll() && options->fit == Fit::Both)
            throw Misuse{QStringLiteral("--fit both is for texts that stand; --scroll moves them")};
    }
    if (line.IsSet("align")) {
        options->align = Align(int(Align::Left) + line.Choice("align"));
        if (options->motion.IsSideways())
            throw Misuse{QStringLiteral("--align is for texts that stand; this one scrolls "
                                        "sideways")};
    }
    options->valign = VAlign(line.Choice("valign"));
    options->padding = line.Number("padding");
    options->keepsWords = !line.IsSet("tear-words");
}

QStringList EffectNames()
{
    QStringList names;
    for (const Motion& effect : Effects())
        names.append(QLatin1String(effect.name));
    return names;
}

int ReadEffect(const QString& word)
{
    if (const Motion* effect = FindEffect(word))
        return effect->number;
    throw Misuse{QStringLiteral(
                     "--effect takes a number from 0 to %1 or a name out of animtext effects, not "
                     "\"%2\"%3")
                     .arg(Effects().last().number)
                     .arg(word, DidYouMeanOneOf(word, EffectNames()))};
}

void ReadMotion(const CommandLine& line, AuthorOptions* options)
{
    if (!line.IsSet("scroll")) {
        options->motion.number = ReadEffect(line.Value("effect"));
        return;
    }
    if (line.IsSet("effect"))
        throw Misuse{QStringLiteral("--effect and --scroll exclude each other")};
    const QString direction = line.Value("scroll");
    const Motion* scroll = FindScroll(direction);
    if (!scroll)
        throw Misuse{
            QStringLiteral("--scroll takes %1, not \"%2\"%3")
                .arg(OneOf(Directions()), direction, DidYouMeanOneOf(direction, Directions()))};
    options->motion = {Mode::Scroll, scroll->number};
}

/** The file that @p option names, as the scene will name it: seen from the scene's folder. */
QString FileForScene(const CommandLine& line, const char* option)
{
    const QString name = line.Value(option);
    const QFileInfo file(name);
    if (!file.isFile())
        throw Misuse{QStringLiteral("--%1: there is no file %2").arg(QLatin1String(option), name)};
    return QFileInfo(RealPath(line.Value("output")))
        .dir()
        .relativeFilePath(file.absoluteFilePath());
}

void ReadBackground(const CommandLine& line, AuthorOptions* options)
{
    if (line.IsSet("dazzle"))
        options->dazzle = Dazzle(int(Dazzle::Plain) + line.Choice("dazzle"));
    if (line.IsSet("picture")) {
        if (!line.IsSet("dazzle"))
            throw Misuse{QStringLiteral("--picture is for the dazzle background; add --dazzle")};
        options->picture = FileForScene(line, "picture");
    }
    if (line.IsSet("neon"))
        options->neon = line.Number("neon");
    if ((options->neon > lastDrawnNeon) != line.IsSet("neon-picture"))
        throw Misuse{
            QStringLiteral("--neon above %1 and --neon-picture go together").arg(lastDrawnNeon)};
    if (line.IsSet("neon-picture"))
        options->neonPicture = FileForScene(line, "neon-picture");
}

int ReadHold(const CommandLine& line)
{
    int units = 0;
    if (!ToHoldUnits(line.Time("hold"), &units))
        throw Misuse{QStringLiteral("--hold takes whole tenths of a second, not \"%1\"")
                         .arg(line.Value("hold"))};
    return units;
}

} // namespace

QVector<Option> WishOptions()
{
    const QStringList dazzles{QStringLiteral("plain"), QStringLiteral("linear"),
                              QStringLiteral("radial"), QStringLiteral("conical")};
    return {
        Option::File("output", "SCENE.json", "The scene file to write.").Letter('o').Required(),
        Option::Text("text", "TEXT", "The text; one line."),
        Option::File("text-file", "FILE",
                     "Takes the text from a UTF-8 file of at most 1 MiB, - for standard input."),
        Option::Text("font", "FAMILY", "A font family or a font file.").Or("DejaVu Sans"),
        Option::Number("size", smallestReadableSize, largestFontSize,
                       "The font's size in pixels; as large as fits the area, or 48."),
        Option::Flag("bold", "Bold letters."),
        Option::Flag("italic", "Slanted letters."),
        Option::Flag("underline", "A bar under the text."),
        Option::Color("color", "The text's color, a name or #rrggbb.").Or("#ffa000"),
        Option::Flag("markup",
                     "The text has tags: <b>, <i>, <u>, <font face= size= color=>; or it is HTML "
                     "out of an editor."),
        Option::Flag("hollow", "Outlined letters."),
        Option::Text("effect", "NAME|N", "The entrance effect (animtext effects lists them all).")
            .Or("4")
            .Offering(EffectNames()),
        Option::Text("scroll", "DIRECTION",
                     "Scrolls left, right, up or down in place of an entrance.")
            .Offering(Directions()),
        Option::Number("speed", 0, 9, "0 slowest to 9 fastest.").Or("5"),
        Option::Time("hold", 1000, 0, most / 10, "TIME",
                     "How long a page stands, as in 2s or 1500ms.")
            .Or("2s"),
        Option::Number("plays", 1, most, "How many times the text is shown.").Or("1"),
        Option::Size("area", largestSide,
                     "The area's size in pixels; 512 wide and as high as the text."),
        Option::Point("pos", "Where the area lies on the display.").Or("0,0"),
        Option::Choice("fit", "WHAT", {QStringLiteral("height"), QStringLiteral("both")},
                       "As large as fits the area's height, or height and width on one page."),
        Option::Choice("align", "WHERE",
                       {QStringLiteral("left"), QStringLiteral("center"), QStringLiteral("right")},
                       "Where each page's text stands; where its reading begins."),
        Option::Choice("valign", "WHERE",
                       {QStringLiteral("top"), QStringLiteral("middle"), QStringLiteral("bottom")},
                       "Where the line stands between top and bottom.")
            .Or("middle"),
        Option::Number("padding", 0, largestSide, "Pixels that stay free at each side.").Or("0"),
        Option::Flag("tear-words", "Pages end anywhere, not only where words end."),
        Option::Size("display", largestSide, "The display's size in pixels; just what is needed."),
        Option::Flag("no-alpha",
                     "Layers of 24 bits with a color key, for devices without alpha blending."),
        Option::Choice("dazzle", "KIND", dazzles,
                       "A background of running colors: plain (also --dazzle alone), linear, "
                       "radial or conical.")
            .Alone("plain"),
        Option::File("picture", "FILE", "A picture for the dazzle background."),
        Option::Number("neon", 0, most, "A neon border; above 28 the pictures of --neon-picture."),
        Option::File("neon-picture", "FILE", "An animated picture for the neon background."),
        Option::Flag("append", "Adds the text to the scene that is there."),
        Option::Number("page", 1, most,
                       "The page that it is added to; one more than there are makes a new one."),
        Option::Number(
            "in-area", 1, most,
            "The area of that page that it is added to, and has its place and size from."),
        Option::Text("replace", "PLACE",
                     "Puts it in the place of another text (animtext list numbers them)."),
        Option::Flag("overwrite", "Makes it the only text of a scene that has several.")};
}

void ReadLook(const CommandLine& line, AuthorOptions* options)
{
    options->font = ReadFont(line);
    options->color = line.Color("color");
    options->hollow = line.IsSet("hollow");
    options->hold = ReadHold(line);
}

AuthorOptions ReadWishes(const CommandLine& line, QStringList* notes)
{
    AuthorOptions options;
    ReadLook(line, &options);
    ReadMotion(line, &options);
    ReadStyledText(line, &options, notes);
    ReadPlacing(line, &options);
    options.speed = line.Number("speed");
    options.plays = line.Number("plays");
    if (line.IsSet("area"))
        options.area = line.Size("area");
    options.pos = line.Point("pos");
    ReadBackground(line, &options);
    return options;
}

} // namespace AnimText
