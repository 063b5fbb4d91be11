#include "animtext/shared/authoroptions.h"

#include "author/markup.h"
#include "files/wholefile.h"
#include "layout/fonts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

#include <cstdio>

namespace AnimText {

namespace {

constexpr int standardSize = 48; // pixels, of text with tags
constexpr int largestSide = 16384;
constexpr int longestTextFile = 1 << 20; // bytes, with tags
constexpr int most = 1000000;            // limit of numbers without a natural one
constexpr int lastDrawnNeon = 28;        // neon styles above show a picture

QString ReadText(const CommandLine& line)
{
    if (line.IsSet("text") == line.IsSet("text-file"))
        throw Misuse{line.IsSet("text")
                         ? QStringLiteral("--text and --text-file cannot be combined")
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
    // Decoding replaces invalid bytes.
    if (text.toUtf8() != bytes)
        throw Misuse{QStringLiteral("%1: the text is not valid UTF-8").arg(name)};
    return text;
}

QFont ReadFont(const CommandLine& line)
{
    QString family;
    QString error;
    if (!FindFamily(line.Value("font"), &family, &error)) {
        if (line.IsSet("font") || FontFamilies().isEmpty())
            throw Misuse{error};
        family = QGuiApplication::font().family(); // the default one is not installed
    }
    QFont font(family);
    if (line.IsSet("size"))
        font.setPixelSize(line.Number("size"));
    font.setBold(line.IsSet("bold"));
    font.setItalic(line.IsSet("italic"));
    font.setUnderline(line.IsSet("underline"));
    return font;
}

/** Reads the text and its tags. Needs the font, color and motion in @p options. */
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
        options->fit = line.Number("fit") == 0 ? Fit::Height : Fit::Both;
        if (line.IsSet("size") || !line.IsSet("area"))
            throw Misuse{QStringLiteral("--fit needs --area and cannot be combined with --size")};
        if (options->motion.IsScroll() && options->fit == Fit::Both)
            throw Misuse{
                QStringLiteral("--fit both cannot be combined with --scroll; use --fit height")};
    }
    if (line.IsSet("align")) {
        options->align = Align(int(Align::Left) + line.Number("align"));
        if (options->motion.IsSideways())
            throw Misuse{QStringLiteral("--align cannot be combined with --scroll left or right")};
    }
    options->valign = VAlign(line.Number("valign"));
    options->padding = line.Number("padding");
    options->keepsWords = !line.IsSet("tear-words");
}

void ReadMotion(const CommandLine& line, AuthorOptions* options)
{
    if (!line.IsSet("scroll")) {
        options->motion.number = line.Number("effect");
        return;
    }
    if (line.IsSet("effect"))
        throw Misuse{QStringLiteral("--effect and --scroll cannot be combined")};
    options->motion = {Mode::Scroll, line.Number("scroll")};
}

/** The file of @p option, relative to the scene's folder. */
QString FileForScene(const CommandLine& line, const char* option)
{
    const QString name = line.Value(option);
    const QFileInfo file(name);
    if (!file.isFile())
        throw Misuse{QStringLiteral("--%1: %2 is not a file").arg(QLatin1String(option), name)};
    return QFileInfo(RealPath(line.Value("output")))
        .dir()
        .relativeFilePath(file.absoluteFilePath());
}

void ReadBackground(const CommandLine& line, AuthorOptions* options)
{
    if (line.IsSet("dazzle"))
        options->dazzle = Dazzle(int(Dazzle::Plain) + line.Number("dazzle"));
    if (line.IsSet("picture")) {
        if (!line.IsSet("dazzle"))
            throw Misuse{QStringLiteral("--picture needs --dazzle")};
        options->picture = FileForScene(line, "picture");
    }
    if (line.IsSet("neon"))
        options->neon = line.Number("neon");
    if ((options->neon > lastDrawnNeon) != line.IsSet("neon-picture"))
        throw Misuse{QStringLiteral("--neon above %1 and --neon-picture need each other")
                         .arg(lastDrawnNeon)};
    if (line.IsSet("neon-picture"))
        options->neonPicture = FileForScene(line, "neon-picture");
}

} // namespace

QVector<Option> LayoutOptions()
{
    const QStringList dazzles{QStringLiteral("plain"), QStringLiteral("linear"),
                              QStringLiteral("radial"), QStringLiteral("conical")};
    return {
        Option::File("output", "SCENE.json", "Scene file to write.").Letter('o').Required(),
        Option::Text("text", "TEXT", "Text to show, on one line."),
        Option::File("text-file", "FILE",
                     "Read the text from a UTF-8 file of up to 1 MiB; - is standard input."),
        Option::Text("font", "FAMILY", "Font family or font file.").Or("DejaVu Sans"),
        Option::Number("size", smallestReadableSize, largestFontSize,
                       "Font size in pixels. Default: fits the area, or 48."),
        Option::Flag("bold", "Bold text."),
        Option::Flag("italic", "Italic text."),
        Option::Flag("underline", "Underlined text."),
        Option::Color("color", "Text color: a name or #rrggbb.").Or("#ffa000"),
        Option::Flag("markup", "Read tags in the text: <b>, <i>, <u> and <font face= size= "
                               "color=>, or HTML from an editor."),
        Option::Flag("hollow", "Draw only the outlines of letters."),
        Option::Effect("effect", "Entrance effect, by its name or number in animtext effects.")
            .Or("4"),
        Option::Scroll("scroll", "Scroll left, right, up or down instead of using an effect."),
        Option::Number("speed", 0, 9, "Speed, from 0 (slowest) to 9 (fastest).").Or("5"),
        Option::Hold("hold", "How long to hold each page, such as 2s or 1500ms.").Or("2s"),
        Option::Number("plays", 1, most, "How many times to play the text.").Or("1"),
        Option::Size("area", largestSide,
                     "Size of the area in pixels. Default: fits the text; 512 wide for pages."),
        Option::Point("pos", "Position of the area on the display, in pixels.").Or("0,0"),
        Option::Choice("fit", "WHAT", {QStringLiteral("height"), QStringLiteral("both")},
                       "Fit the text to the area: height, or both for height and width."),
        Option::Choice(
            "align", "WHERE",
            {QStringLiteral("left"), QStringLiteral("center"), QStringLiteral("right")},
            "Horizontal alignment: left, center or right. Default: the side where reading starts."),
        Option::Choice("valign", "WHERE",
                       {QStringLiteral("top"), QStringLiteral("middle"), QStringLiteral("bottom")},
                       "Vertical alignment: top, middle or bottom.")
            .Or("middle"),
        Option::Number("padding", 0, largestSide, "Free space on each side, in pixels.").Or("0"),
        Option::Flag("tear-words", "Allow page breaks inside words."),
        Option::Size("display", largestSide,
                     "Size of the display in pixels. Default: the scene's, or just large enough "
                     "for the area."),
        Option::Flag("no-alpha",
                     "Use 24-bit layers with a color key, for devices without alpha blending."),
        Option::Choice(
            "dazzle", "KIND", dazzles,
            "Background of moving colors: plain, linear, radial or conical. Without KIND: plain.")
            .Alone("plain"),
        Option::File("picture", "FILE", "Picture for the dazzle background."),
        Option::Number("neon", 0, most, "Neon border style. Styles above 28 show --neon-picture."),
        Option::File("neon-picture", "FILE", "Animated picture for neon styles above 28."),
        Option::Flag("append", "Add the text to the scene instead of replacing the scene."),
        Option::Number("page", 1, most,
                       "Add the text to this page; one more than the last adds a page."),
        Option::Number(
            "in-area", 1, most,
            "Add the text to this area of the page and use the area's position and size."),
        Option::Text("replace", "PLACE",
                     "Replace this text, by its number in animtext list or its path."),
        Option::Flag("overwrite", "Replace a scene that has several texts.")};
}

void ReadLook(const CommandLine& line, AuthorOptions* options)
{
    options->font = ReadFont(line);
    options->color = line.Color("color");
    options->hollow = line.IsSet("hollow");
    options->hold = line.Number("hold");
}

AuthorOptions ReadOptions(const CommandLine& line, QStringList* notes)
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
