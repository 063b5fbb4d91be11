#include "animtext/authorwords.h"

#include "scene/catalogue.h"
#include "scene/suggest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>
#include <cstdio>

namespace AnimText {

namespace {

constexpr int smallestSize = 4; // pixels
constexpr int largestSize = 2000;
constexpr int largestSide = 16384;
constexpr int most = 1000000;     // plays, holds and the like
constexpr int lastDrawnNeon = 28; // neon styles above show a picture

/** "; did you mean X?" with the shortest that holds @p word, else with the closest, or nothing. */
QString DidYouMeanOneOf(const QString& word, const QStringList& known)
{
    const QStringList holders = known.filter(word, Qt::CaseInsensitive);
    const auto shortest =
        std::min_element(holders.begin(), holders.end(),
                         [](const QString& a, const QString& b) { return a.size() < b.size(); });
    return shortest == holders.end() || word.isEmpty() ? DidYouMean(word, known)
                                                       : DidYouMean(*shortest, known);
}

QString FamilyFromFile(const QString& file)
{
    const int id = QFontDatabase::addApplicationFont(file);
    const QString family = QFontDatabase::applicationFontFamilies(id).value(0);
    if (family.isEmpty())
        throw Misuse{QStringLiteral("%1: no font can be read from it").arg(file)};
    return family;
}

QString FontFamily(const QString& wish, bool isStandard)
{
    static const QStringList generic{QStringLiteral("Sans"), QStringLiteral("Sans Serif"),
                                     QStringLiteral("Serif"), QStringLiteral("Monospace")};
    const QStringList families = QFontDatabase().families();
    if (families.isEmpty())
        throw Misuse{QStringLiteral("no fonts are installed; apt-get install fonts-dejavu-core")};
    if (QFileInfo(wish).isFile())
        return FamilyFromFile(wish);
    if ((families + generic).contains(wish, Qt::CaseInsensitive))
        return wish;
    if (isStandard)
        return QGuiApplication::font().family();
    throw Misuse{QStringLiteral("there is no font family \"%1\"%2")
                     .arg(wish, DidYouMeanOneOf(wish, families))};
}

} // namespace

AuthorWords::AuthorWords()
    : line(QStringLiteral("author"), QStringLiteral("--text TEXT -o SCENE.json"),
           QStringLiteral("Lays a text out and writes the scene that shows it, with its data files "
                          "beside it."))
{
    const auto add = [this](const char* names, const char* value, const char* description,
                            const char* standard = "") {
        line.AddOption(QString::fromLatin1(names).split(QLatin1Char(' ')),
                       QString::fromUtf8(description), QString::fromLatin1(value),
                       QString::fromLatin1(standard));
    };
    add("o output", "SCENE.json", "The scene file to write.");
    add("text", "TEXT", "The text; one line.");
    add("text-file", "FILE", "Takes the text from a UTF-8 file, - for standard input.");
    add("font", "FAMILY", "A font family or a font file; DejaVu Sans.", "DejaVu Sans");
    add("size", "PX", "The font's size in pixels; as large as fits the area, or 48.");
    add("bold", "", "Bold letters.");
    add("italic", "", "Slanted letters.");
    add("underline", "", "A bar under the text.");
    add("color", "COLOR", "The text's colour, a name or #rrggbb; #ffa000.", "#ffa000");
    add("hollow", "", "Outlined letters.");
    add("effect", "NAME|N", "The entrance effect; 4 (animtext effects lists them all).", "4");
    add("scroll", "DIRECTION", "Scrolls left, right, up or down in place of an entrance.");
    add("speed", "N", "0 slowest to 9 fastest; 5.", "5");
    add("hold", "N", "How long a page stands, in units of 100 ms; 20.", "20");
    add("plays", "N", "How many times the text is shown; 1.", "1");
    add("area", "WxH", "The area's size in pixels; 512 wide and as high as the text.");
    add("pos", "X,Y", "Where the area lies on the display; 0,0.", "0,0");
    add("display", "WxH", "The display's size in pixels; just what is needed.");
    add("no-alpha", "", "Layers of 24 bits with a colour key, for devices without alpha blending.");
    add("dazzle", "KIND",
        "A background of running colours: plain (also --dazzle alone), linear, radial or conical.");
    add("picture", "FILE", "A picture for the dazzle background.");
    add("neon", "N", "A neon border; above 28 the pictures of --neon-picture.");
    add("neon-picture", "FILE", "An animated picture for the neon background.");
    add("append", "", "Adds the text to the scene that is there.");
}

bool AuthorWords::Parse(const QStringList& words)
{
    QStringList expanded = words;
    for (QString& word : expanded) {
        if (word == QLatin1String("--dazzle"))
            word = QStringLiteral("--dazzle=plain");
    }
    return line.Parse(expanded, 0, 0);
}

QString AuthorWords::ScenePath() const
{
    if (Value("o").isEmpty())
        throw Misuse{QStringLiteral("expected -o SCENE.json")};
    return Value("o");
}

AuthorOptions AuthorWords::Options(QStringList* notes) const
{
    AuthorOptions options;
    QString error;
    options.text = Text();
    if (!ToOneLine(&options.text, notes, &error))
        throw Misuse{error};
    options.font = Font();
    options.color = Color();
    ReadMotion(&options);
    options.speed = Number("speed", 0, 9);
    options.hold = Number("hold", 0, most);
    options.plays = Number("plays", 0, most);
    options.area = Size("area");
    options.pos = Pair("pos", "(-?\\d{1,5}),(-?\\d{1,5})", "16,0");
    options.hollow = IsSet("hollow");
    ReadBackground(&options);
    return options;
}

QString AuthorWords::Text() const
{
    if (IsSet("text") == IsSet("text-file"))
        throw Misuse{IsSet("text") ? QStringLiteral("--text and --text-file exclude each other")
                                   : QStringLiteral("expected --text TEXT or --text-file FILE")};
    if (IsSet("text"))
        return Value("text");

    const QString name = Value("text-file");
    const bool isStandardInput = name == QLatin1String("-");
    QFile file(name);
    if (!(isStandardInput ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly)))
        throw Misuse{QStringLiteral("%1: cannot be read: %2").arg(name, file.errorString())};
    QTextCodec::ConverterState state;
    const QByteArray bytes = file.readAll();
    const QString text =
        QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        throw Misuse{QStringLiteral("%1: expected UTF-8; the text has other bytes").arg(name)};
    return text;
}

QFont AuthorWords::Font() const
{
    QFont font(FontFamily(Value("font"), !IsSet("font")));
    if (IsSet("size"))
        font.setPixelSize(Number("size", smallestSize, largestSize));
    font.setBold(IsSet("bold"));
    font.setItalic(IsSet("italic"));
    font.setUnderline(IsSet("underline"));
    return font;
}

QColor AuthorWords::Color() const
{
    static const QRegularExpression digits(QStringLiteral("^#([0-9a-fA-F]{3}){1,2}$"));
    const QString name = Value("color");
    const QColor color(name);
    const bool isHex = name.startsWith(QLatin1Char('#'));
    if (color.isValid() && color.alpha() == 255 && (!isHex || digits.match(name).hasMatch()))
        return color;
    throw Misuse{QStringLiteral("there is no colour \"%1\"; expected a name or #rrggbb%2")
                     .arg(name, DidYouMean(name, QColor::colorNames()))};
}

void AuthorWords::ReadMotion(AuthorOptions* options) const
{
    if (IsSet("scroll")) {
        if (IsSet("effect"))
            throw Misuse{QStringLiteral("--effect and --scroll exclude each other")};
        const Motion* scroll = FindScroll(Value("scroll"));
        if (!scroll)
            throw Misuse{QStringLiteral("--scroll takes left, right, up or down, not \"%1\"")
                             .arg(Value("scroll"))};
        options->mode = Mode::Scroll;
        options->motion = scroll->number;
        return;
    }
    const Motion* effect = FindEffect(Value("effect"));
    if (!effect) {
        QStringList names;
        for (const Motion& known : Effects())
            names.append(QLatin1String(known.name));
        throw Misuse{QStringLiteral("there is no effect \"%1\"%2")
                         .arg(Value("effect"), DidYouMeanOneOf(Value("effect"), names))};
    }
    options->motion = effect->number;
}

void AuthorWords::ReadBackground(AuthorOptions* options) const
{
    if (IsSet("dazzle")) {
        static const QStringList kinds{QStringLiteral("plain"), QStringLiteral("linear"),
                                       QStringLiteral("radial"), QStringLiteral("conical")};
        const int kind = kinds.indexOf(Value("dazzle"));
        if (kind < 0)
            throw Misuse{QStringLiteral("--dazzle takes %1, not \"%2\"")
                             .arg(kinds.join(QStringLiteral(", ")), Value("dazzle"))};
        options->dazzle = Dazzle(int(Dazzle::Plain) + kind);
    }
    if (IsSet("picture")) {
        if (!IsSet("dazzle"))
            throw Misuse{QStringLiteral("--picture is for the dazzle background; add --dazzle")};
        options->picture = FileForScene("picture");
    }
    if (IsSet("neon"))
        options->neon = Number("neon", 0, most);
    if ((options->neon > lastDrawnNeon) != IsSet("neon-picture"))
        throw Misuse{
            QStringLiteral("--neon above %1 and --neon-picture go together").arg(lastDrawnNeon)};
    if (IsSet("neon-picture"))
        options->neonPicture = FileForScene("neon-picture");
}

/** The file that @p option names, as the scene will name it: seen from the scene's folder. */
QString AuthorWords::FileForScene(const char* option) const
{
    const QFileInfo file(Value(option));
    if (!file.isFile())
        throw Misuse{
            QStringLiteral("--%1: there is no file %2").arg(QLatin1String(option), Value(option))};
    return QFileInfo(ScenePath()).dir().relativeFilePath(file.absoluteFilePath());
}

int AuthorWords::Number(const char* option, int least, int most) const
{
    bool isNumber = false;
    const int value = Value(option).toInt(&isNumber);
    if (!isNumber || value < least || value > most)
        throw Misuse{QStringLiteral("--%1 takes a whole number from %2 to %3, not \"%4\"")
                         .arg(QLatin1String(option))
                         .arg(least)
                         .arg(most)
                         .arg(Value(option))};
    return value;
}

QPoint AuthorWords::Pair(const char* option, const char* pattern, const char* example) const
{
    const auto match =
        QRegularExpression(QRegularExpression::anchoredPattern(QString::fromUtf8(pattern)))
            .match(Value(option));
    if (!match.hasMatch())
        throw Misuse{QStringLiteral("--%1 takes two whole numbers like %2, not \"%3\"")
                         .arg(QLatin1String(option), QLatin1String(example), Value(option))};
    return QPoint(match.captured(1).toInt(), match.captured(2).toInt());
}

QSize AuthorWords::Size(const char* option) const
{
    if (!IsSet(option))
        return QSize();
    const QPoint pair = Pair(option, "(\\d{1,9})[x×](\\d{1,9})", "512x64");
    if (qMin(pair.x(), pair.y()) < 1 || qMax(pair.x(), pair.y()) > largestSide)
        throw Misuse{QStringLiteral("--%1 takes sides from 1 to %2 pixels, not \"%3\"")
                         .arg(QLatin1String(option))
                         .arg(largestSide)
                         .arg(Value(option))};
    return QSize(pair.x(), pair.y());
}

} // namespace AnimText
