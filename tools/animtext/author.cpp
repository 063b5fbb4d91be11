#include "author.h"

#include "catalogue.h"
#include "commandline.h"
#include "commands.h"
#include "suggest.h"
#include "validate.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTextCodec>

#include <cstdio>

namespace AnimText {

namespace {

constexpr int smallestSize = 4; // pixels
constexpr int largestSize = 2000;
constexpr int largestSide = 16384;
constexpr int mostUnseen = 5; // characters that are told one by one

/** What is wrong with the words; told by RunAuthor(). */
struct Misuse
{
    QString text;
};

class AuthorCommand
{
public:
    AuthorCommand();

    int Run(const QStringList& words);

private:
    AuthorOptions Options();
    QString Text();
    QFont Font();
    void ReadMotion(AuthorOptions* options);
    void ReadBackground(AuthorOptions* options);
    QString FamilyFromFile(const QString& file);
    QString FileForScene(const QString& option);
    int Number(const char* option, int least, int most);
    QPoint Pair(const char* option, const char* pattern, const char* example);
    QSize Size(const char* option);

    bool IsSet(const char* option) const { return line.IsSet(QLatin1String(option)); }
    QString Value(const char* option) const { return line.Value(QLatin1String(option)); }

    void TellUnseen(const AuthoredNode& authored, const QString& text) const;
    QByteArray Summary(const AuthorOptions& options, const AuthoredNode& authored) const;

    CommandLine line;
    QString path; // of the scene
};

QStringList Names(const QList<Motion>& motions)
{
    QStringList names;
    for (const Motion& motion : motions)
        names.append(QLatin1String(motion.name));
    return names;
}

AuthorCommand::AuthorCommand()
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
    add("font", "FAMILY", "A font family, or a font file.", "DejaVu Sans");
    add("size", "PX", "The font's size in pixels; as large as fits the area, or 48.");
    add("bold", "", "Bold letters.");
    add("italic", "", "Slanted letters.");
    add("underline", "", "A bar under the text.");
    add("color", "COLOR", "The text's colour: a name or #rrggbb.", "#ffa000");
    add("hollow", "", "Outlined letters.");
    add("effect", "NAME|N", "The entrance effect (see animtext effects).", "4");
    add("scroll", "DIRECTION", "Scrolls left, right, up or down in place of an entrance.");
    add("speed", "N", "0 slowest to 9 fastest.", "5");
    add("hold", "N", "How long a page stands, in units of 100 ms.", "20");
    add("plays", "N", "How many times the text is shown.", "1");
    add("area", "WxH", "The area's size in pixels; 512 wide and as high as the text.");
    add("pos", "X,Y", "Where the area lies on the display.", "0,0");
    add("display", "WxH", "The display's size in pixels; just what is needed.");
    add("no-alpha", "", "Layers of 24 bits with a colour key, for devices without alpha blending.");
    add("dazzle", "KIND",
        "A background of running colours: plain (also --dazzle alone), linear, "
        "radial or conical.");
    add("picture", "FILE", "A picture for the dazzle background.");
    add("neon", "N", "A neon border; above 28 the pictures of --neon-picture.");
    add("neon-picture", "FILE", "An animated picture for the neon background.");
    add("append", "", "Adds the text to the scene that is there.");
}

int AuthorCommand::Number(const char* option, int least, int most)
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

QPoint AuthorCommand::Pair(const char* option, const char* pattern, const char* example)
{
    const auto match =
        QRegularExpression(QRegularExpression::anchoredPattern(QString::fromUtf8(pattern)))
            .match(Value(option));
    if (!match.hasMatch())
        throw Misuse{QStringLiteral("--%1 takes two whole numbers like %2, not \"%3\"")
                         .arg(QLatin1String(option), QLatin1String(example), Value(option))};
    return QPoint(match.captured(1).toInt(), match.captured(2).toInt());
}

QSize AuthorCommand::Size(const char* option)
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

QString AuthorCommand::Text()
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

QString AuthorCommand::FamilyFromFile(const QString& file)
{
    const int id = QFontDatabase::addApplicationFont(file);
    const QString family = QFontDatabase::applicationFontFamilies(id).value(0);
    if (family.isEmpty())
        throw Misuse{QStringLiteral("%1: no font can be read from it").arg(file)};
    return family;
}

QFont AuthorCommand::Font()
{
    static const QStringList generic{QStringLiteral("Sans"), QStringLiteral("Sans Serif"),
                                     QStringLiteral("Serif"), QStringLiteral("Monospace")};
    const QStringList families = QFontDatabase().families();
    if (families.isEmpty())
        throw Misuse{QStringLiteral("no fonts are installed; apt-get install fonts-dejavu-core")};
    QString family = Value("font");
    if (QFileInfo(family).isFile()) {
        family = FamilyFromFile(family);
    } else if (!IsSet("font") && !families.contains(family)) {
        family = QGuiApplication::font().family();
    } else if (!(families + generic).contains(family, Qt::CaseInsensitive)) {
        throw Misuse{QStringLiteral("there is no font family \"%1\"%2")
                         .arg(family, DidYouMean(family, families))};
    }
    QFont font(family);
    if (IsSet("size"))
        font.setPixelSize(Number("size", smallestSize, largestSize));
    font.setBold(IsSet("bold"));
    font.setItalic(IsSet("italic"));
    font.setUnderline(IsSet("underline"));
    return font;
}

void AuthorCommand::ReadMotion(AuthorOptions* options)
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
        const QStringList names = Names(Effects());
        const QStringList alike = names.filter(Value("effect"), Qt::CaseInsensitive);
        throw Misuse{QStringLiteral("there is no effect \"%1\"%2")
                         .arg(Value("effect"), alike.isEmpty() || alike.size() > 3
                                                   ? DidYouMean(Value("effect"), names)
                                                   : QStringLiteral("; did you mean %1?")
                                                         .arg(alike.join(QStringLiteral(" or "))))};
    }
    options->motion = effect->number;
}

/** The file that @p option names, as the scene will name it: seen from the scene's folder. */
QString AuthorCommand::FileForScene(const QString& option)
{
    const QFileInfo file(line.Value(option));
    if (!file.isFile())
        throw Misuse{QStringLiteral("--%1: there is no file %2").arg(option, file.filePath())};
    return QFileInfo(path).dir().relativeFilePath(file.absoluteFilePath());
}

void AuthorCommand::ReadBackground(AuthorOptions* options)
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
        options->picture = FileForScene(QStringLiteral("picture"));
    }
    if (IsSet("neon")) {
        options->neon = Number("neon", 0, 1000000);
        if (options->neon > 28 && !IsSet("neon-picture"))
            throw Misuse{
                QStringLiteral("--neon above 28 shows a picture; add --neon-picture FILE")};
    }
    if (IsSet("neon-picture")) {
        if (options->neon <= 28)
            throw Misuse{
                QStringLiteral("--neon-picture is for neon styles above 28; add --neon 29")};
        options->neonPicture = FileForScene(QStringLiteral("neon-picture"));
    }
}

AuthorOptions AuthorCommand::Options()
{
    path = Value("o");
    if (path.isEmpty())
        throw Misuse{QStringLiteral("expected -o SCENE.json")};
    AuthorOptions options;
    options.text = Text();
    QStringList notes;
    QString error;
    if (!ToOneLine(&options.text, &notes, &error))
        throw Misuse{error};
    options.font = Font();
    options.color = QColor(Value("color"));
    static const QRegularExpression hexDigits(QStringLiteral("^#([0-9a-fA-F]{3}){1,2}$"));
    const bool isHex = Value("color").startsWith(QLatin1Char('#'));
    if (!options.color.isValid() || options.color.alpha() != 255 ||
        (isHex && !hexDigits.match(Value("color")).hasMatch()))
        throw Misuse{QStringLiteral("there is no colour \"%1\"; expected a name or #rrggbb%2")
                         .arg(Value("color"), DidYouMean(Value("color"), QColor::colorNames()))};
    ReadMotion(&options);
    options.speed = Number("speed", 0, 9);
    options.hold = Number("hold", 0, 1000000);
    options.plays = Number("plays", 0, 1000000);
    options.area = Size("area");
    options.pos = Pair("pos", "(-?\\d{1,5}),(-?\\d{1,5})", "16,0");
    options.hollow = IsSet("hollow");
    ReadBackground(&options);
    for (const QString& note : notes)
        Warn(note);
    return options;
}

/** Says which characters the sign will not show. */
void AuthorCommand::TellUnseen(const AuthoredNode& authored, const QString& text) const
{
    const int count = authored.unseen.size();
    for (int i = 0; i < qMin(count, mostUnseen); ++i) {
        const UnseenCharacter& unseen = authored.unseen[i];
        const QString code = QString::number(unseen.codePoint, 16).toUpper();
        Warn(QStringLiteral("character %1, \"%2\" (U+%3), leaves a gap: %4")
                 .arg(text.leftRef(unseen.index).toUcs4().size() + 1)
                 .arg(QString::fromUcs4(&unseen.codePoint, 1),
                      code.rightJustified(4, QLatin1Char('0')),
                      unseen.missing ? QStringLiteral("no font that is installed has it")
                                     : QStringLiteral("its font has a picture and no outline")));
    }
    if (count > mostUnseen)
        Warn(QStringLiteral("%1 more characters leave gaps").arg(count - mostUnseen));
}

QByteArray AuthorCommand::Summary(const AuthorOptions& options, const AuthoredNode& authored) const
{
    const SceneNode& node = authored.node;
    const QHash<QString, QString> style = node.lists.value(QStringLiteral("TextAttribute")).first();
    const bool scrolls = options.mode == Mode::Scroll;
    const Motion& motion = (scrolls ? Scrolls() : Effects()).at(options.motion);
    const QString pages = authored.pages == 1 ? QStringLiteral("one page")
                                              : QStringLiteral("%1 pages").arg(authored.pages);
    return QStringLiteral("%1: %2 characters of %3, %4 x %5 pixels; %6 in %7 of %8 x %9\n")
        .arg(path)
        .arg(options.text.toUcs4().size())
        .arg(style.value(QStringLiteral("fontName")))
        .arg(authored.textSize.width())
        .arg(authored.textSize.height())
        .arg(QLatin1String(motion.name), scrolls ? QStringLiteral("an area") : pages)
        .arg(node.size.width())
        .arg(node.size.height())
        .toUtf8();
}

int AuthorCommand::Run(const QStringList& words)
{
    QStringList expanded = words;
    for (QString& word : expanded) {
        if (word == QLatin1String("--dazzle"))
            word = QStringLiteral("--dazzle=plain");
    }
    if (!line.Parse(expanded, 0, 0))
        return line.ExitStatus();

    AuthoredNode authored;
    Scene base;
    QString error;
    try {
        const AuthorOptions options = Options();
        const QSize display = Size("display");
        if (IsSet("append") && QFileInfo::exists(path) && !ReadScene(path, &base, &error))
            return Fail(BadInput, error);
        if (IsSet("no-alpha"))
            base.alphaBlend = false;
        if (!AuthorNode(options, &authored, &error))
            return Fail(BadInput, error);
        if (!SaveAuthored(path, authored, base, display, &error))
            return Fail(FailedRun, error);
        TellUnseen(authored, options.text);
        if (!Print(Summary(options, authored)))
            return Fail(FailedRun, QStringLiteral("standard output takes nothing"));
    } catch (const Misuse& misuse) {
        return line.Misused(misuse.text);
    }
    for (const Finding& finding : ValidateScene(path)) {
        if (qstrcmp(finding.rule->code, "outline-empty") != 0) // told by name already
            Warn(QStringLiteral("%1; expected %2. %3")
                     .arg(finding.found, finding.expected, QLatin1String(finding.rule->why)));
    }
    return Done;
}

} // namespace

int RunAuthor(const QStringList& words)
{
    return AuthorCommand().Run(words);
}

} // namespace AnimText
