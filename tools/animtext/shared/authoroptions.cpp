#include "animtext/shared/authoroptions.h"

#include "files/wholefile.h"
#include "scene/fonts.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace AnimText::animtext::shared {

using cli::Option;

namespace {

constexpr int standardSize = 48; // pixels, of text that fits no area
constexpr int largestSide = 16384;
constexpr int longestTextFile = 1 << 20; // bytes, with tags
constexpr int most = 1000000;            // limit of numbers without a natural one
constexpr int lastDrawnNeon = 28;        // neon styles above show a picture

QString ReadWords(const cli::CommandLine& line)
{
    if (line.IsSet("text") == line.IsSet("text-file"))
        throw cli::Misuse{line.IsSet("text") ? "--text and --text-file cannot be combined"
                                             : "expected --text TEXT or --text-file FILE"};
    if (line.IsSet("text"))
        return line.Value("text");

    const QString name = line.Value("text-file");
    QFile file(name);
    QByteArray bytes;
    // Standard input may be a socket, which has no name to open.
    if (name == "-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly))
        bytes = files::ReadAtMost(&file, longestTextFile + 1);
    if (file.error() != QFileDevice::NoError)
        throw cli::Misuse{QStringLiteral("%1: cannot be read: %2").arg(name, file.errorString())};
    if (bytes.size() > longestTextFile)
        throw cli::Misuse{QStringLiteral("%1: expected a text of at most %2 bytes, found more")
                              .arg(name)
                              .arg(longestTextFile)};
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    const QString text = QString::fromUtf8(bytes);
    // Decoding replaces invalid bytes.
    if (text.toUtf8() != bytes)
        throw cli::Misuse{name + ": the text is not valid UTF-8"};
    return text;
}

scene::NodeMotion ReadMotion(const cli::CommandLine& line)
{
    if (!line.IsSet("scroll"))
        return {scene::Mode::Entrance, line.Get<int>("effect")};
    if (line.IsSet("effect"))
        throw cli::Misuse{"--effect and --scroll cannot be combined"};
    return {scene::Mode::Scroll, line.Get<int>("scroll")};
}

layout::Setting ReadSetting(const cli::CommandLine& line, const scene::NodeMotion& motion)
{
    layout::Setting setting;
    if (line.IsSet("fit")) {
        setting.fit = line.Get<int>("fit") == 0 ? layout::Fit::Height : layout::Fit::Both;
        if (line.IsSet("size") || !line.IsSet("area"))
            throw cli::Misuse{"--fit needs --area and cannot be combined with --size"};
        if (motion.IsScroll() && setting.fit == layout::Fit::Both)
            throw cli::Misuse{"--fit both cannot be combined with --scroll; use --fit height"};
    }
    if (line.IsSet("align")) {
        setting.align = layout::Align(int(layout::Align::Left) + line.Get<int>("align"));
        if (motion.IsSideways())
            throw cli::Misuse{"--align cannot be combined with --scroll left or right"};
    }
    setting.valign = layout::VAlign(line.Get<int>("valign"));
    setting.padding = line.Get<int>("padding");
    setting.keepsWords = !line.IsSet("tear-words");
    return setting;
}

/** The file of @p option. */
QString FileIn(const cli::CommandLine& line, const char* option)
{
    const QString name = line.Value(option);
    if (!QFileInfo(name).isFile())
        throw cli::Misuse{QStringLiteral("--%1: %2 is not a file").arg(option, name)};
    return name;
}

void ReadBackground(const cli::CommandLine& line, scene::SceneNode* node)
{
    if (line.IsSet("dazzle"))
        node->attributes["CheckDazzle"] = 1;
    if (const int gradient = line.Get<int>("dazzle")) { // 0 is plain
        node->attributes["CheckColorGradient"] = 1;
        node->attributes["ColorGradient"] = gradient - 1;
    }
    if (line.IsSet("picture")) {
        if (!line.IsSet("dazzle"))
            throw cli::Misuse{"--picture needs --dazzle"};
        node->attributes["CheckPictureFills"] = 1;
        node->files["FillImage"] = FileIn(line, "picture");
    }
    if (line.IsSet("neon"))
        node->attributes["CheckNeonBg"] = 1;
    node->neonEffect = line.Get<int>("neon");
    if ((node->neonEffect > lastDrawnNeon) != line.IsSet("neon-picture"))
        throw cli::Misuse{QStringLiteral("--neon above %1 and --neon-picture need each other")
                              .arg(lastDrawnNeon)};
    if (line.IsSet("neon-picture"))
        node->files["NeonGifPath"] = FileIn(line, "neon-picture");
}

author::Destination ReadDestination(const cli::CommandLine& line)
{
    author::Destination destination;
    const bool isCounted = line.IsSet("page") || line.IsSet("in-area");
    destination.isAdded = line.IsSet("append") || line.IsSet("replace") || isCounted;
    destination.overwrites = line.IsSet("overwrite");
    destination.isOpaque = line.IsSet("no-alpha");
    destination.display = line.Get<QSize>("display");
    destination.page = qMax(1, line.Get<int>("page"));
    destination.area = line.Get<int>("in-area");
    destination.instead = line.Value("replace");
    if (!destination.instead.isEmpty() && isCounted)
        throw cli::Misuse{"--replace cannot be combined with --page or --in-area"};
    if (line.IsSet("replace") && destination.instead.isEmpty())
        throw cli::Misuse{"--replace is empty; expected PLACE"};
    if (destination.overwrites && destination.isAdded)
        throw cli::Misuse{
            "--overwrite cannot be combined with --append, --page, --in-area or --replace"};
    return destination;
}

} // namespace

QVector<Option> LayoutOptions()
{
    const QStringList dazzles{"plain", "linear", "radial", "conical"};
    return {
        Option::File("output", "SCENE.json", "Scene file to write.").Letter('o').Required(),
        Option::Text("text", "TEXT", "Text to show, on one line."),
        Option::File("text-file", "FILE",
                     "Read the text from a UTF-8 file of up to 1 MiB; - is standard input."),
        Option::Font("font", "Font family or font file.").Or(scene::usualFamily),
        Option::Number("size", layout::smallestReadableSize, layout::largestFontSize,
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
        Option::Choice("fit", "WHAT", {"height", "both"},
                       "Fit the text to the area: height, or both for height and width."),
        Option::Choice(
            "align", "WHERE", {"left", "center", "right"},
            "Horizontal alignment: left, center or right. Default: the side where reading starts."),
        Option::Choice("valign", "WHERE", {"top", "middle", "bottom"},
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

author::WrittenText ReadWritten(const cli::CommandLine& line)
{
    author::WrittenText written;
    written.isSized = line.IsSet("size");
    QFont font(line.Get<QString>("font"));
    font.setPixelSize(written.isSized ? line.Get<int>("size") : standardSize);
    font.setBold(line.IsSet("bold"));
    font.setItalic(line.IsSet("italic"));
    font.setUnderline(line.IsSet("underline"));
    written.style = {0, font, line.Get<QColor>("color")};
    return written;
}

scene::SceneNode ReadLook(const cli::CommandLine& line)
{
    scene::SceneNode node;
    node.size = line.Get<QSize>("area");
    node.hold = line.Get<int>("hold");
    if (line.IsSet("hollow"))
        node.attributes["Hollow"] = 1;
    return node;
}

author::AuthorRequest ReadRequest(const cli::CommandLine& line)
{
    author::AuthorRequest request;
    request.path = line.Value("output");
    request.written = ReadWritten(line);
    request.written.words = ReadWords(line);
    request.written.hasTags = line.IsSet("markup");
    request.motion = ReadMotion(line);
    request.setting = ReadSetting(line, request.motion);
    request.node = ReadLook(line);
    ReadBackground(line, &request.node);
    request.node.pos = line.Get<QPoint>("pos");
    request.node.attributes[request.motion.SpeedKey()] = line.Get<int>("speed");
    request.node.attributes["PlayTimes"] = line.Get<int>("plays");
    request.hasPlace = line.IsSet("pos");
    request.destination = ReadDestination(line);
    return request;
}

} // namespace AnimText::animtext::shared
