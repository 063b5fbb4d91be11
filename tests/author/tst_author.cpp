#include "author.h"

#include <QFontMetrics>
#include <QtTest>

using namespace AnimText;

Q_DECLARE_METATYPE(AnimText::AuthorOptions)

namespace {

AuthorOptions Options(const QString& text = QStringLiteral("Hello"))
{
    AuthorOptions options;
    options.text = text;
    options.font = QFont(QStringLiteral("DejaVu Sans"));
    return options;
}

int Sum(const SceneNode& node, const char* list, const char* field)
{
    int sum = 0;
    for (const auto& row : node.lists.value(QLatin1String(list)))
        sum += row.value(QLatin1String(field)).toInt();
    return sum;
}

using Attributes = QMap<QString, QVariant>;

} // namespace

class AuthorTest : public QObject
{
    Q_OBJECT

private slots:
    void oneLine_data();
    void oneLine();
    void attributes_data();
    void attributes();
    void rows();
    void sizes();
    void refusals_data();
    void refusals();
};

void AuthorTest::oneLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line"); // null: refused
    QTest::addColumn<int>("notes");

    const auto row = [](const char* name, const QString& text, const QString& line, int notes) {
        QTest::newRow(name) << text << line << notes;
    };
    row("plain", QStringLiteral(" a  b "), QStringLiteral(" a  b "), 0);
    row("last line break", QStringLiteral("a\n"), QStringLiteral("a"), 0);
    row("last Windows line break", QStringLiteral("a\r\n"), QStringLiteral("a"), 0);
    row("line breaks", QStringLiteral("a\r\nb\nc\u2028d\n"), QStringLiteral("a b c d"), 1);
    row("tab and line break", QStringLiteral("a\tb\nc"), QStringLiteral("a b c"), 2);
    row("surrogates", QStringLiteral("😀"), QStringLiteral("😀"), 0);
    row("nothing", QString(), QString(), 0);
    row("only blanks", QStringLiteral(" \n "), QString(), 0);
    row("control character", QStringLiteral("a\u0007"), QString(), 0);
    row("half a surrogate pair", QString(QChar(0xD83D)) + QLatin1Char('a'), QString(), 0);
    row("the other half", QLatin1Char('a') + QString(QChar(0xDE00)), QString(), 0);
}

void AuthorTest::oneLine()
{
    QFETCH(QString, text);
    QFETCH(QString, line);
    QFETCH(int, notes);
    QStringList said;
    QString error;
    const bool accepted = ToOneLine(&text, &said, &error);
    QCOMPARE(accepted, !line.isNull());
    QCOMPARE(error.isEmpty(), accepted);
    if (accepted) {
        QCOMPARE(text, line);
        QCOMPARE(said.size(), notes);
    }
}

void AuthorTest::attributes_data()
{
    QTest::addColumn<AuthorOptions>("options");
    QTest::addColumn<Attributes>("expected"); // besides "Text" and "PlayTimes"

    const auto key = [](const char* name) { return QString::fromLatin1(name); };
    const Attributes entrance = {
        {key("EffectType"), 0}, {key("AnimationEffect"), 4}, {key("AnimationSpeed"), 5}};
    const auto with = [](Attributes attributes, const Attributes& more) {
        for (auto it = more.begin(); it != more.end(); ++it)
            attributes[it.key()] = it.value();
        return attributes;
    };
    QTest::newRow("entrance") << Options() << entrance;

    AuthorOptions options = Options();
    options.mode = Mode::Scroll;
    options.motion = 3;
    options.speed = 9;
    QTest::newRow("scroll") << options
                            << Attributes{{key("EffectType"), 1},
                                          {key("ContinueStyle"), 3},
                                          {key("ContinueSpeed"), 9}};
    options = Options();
    options.hollow = true;
    options.neon = 7;
    QTest::newRow("hollow over neon")
        << options << with(entrance, {{key("Hollow"), 1}, {key("CheckNeonBg"), 1}});
    options = Options();
    options.dazzle = Dazzle::Plain;
    QTest::newRow("dazzle") << options << with(entrance, {{key("CheckDazzle"), 1}});
    options.dazzle = Dazzle::Conical;
    options.picture = QStringLiteral("p.png");
    QTest::newRow("conical dazzle with a picture")
        << options
        << with(entrance, {{key("CheckDazzle"), 1},
                           {key("CheckColorGradient"), 1},
                           {key("ColorGradient"), 2},
                           {key("CheckPictureFills"), 1}});
}

void AuthorTest::attributes()
{
    QFETCH(AuthorOptions, options);
    QFETCH(Attributes, expected);
    AuthoredNode authored;
    QString error;
    QVERIFY2(AuthorNode(options, &authored, &error), qPrintable(error));
    Attributes found = authored.node.attributes;
    QCOMPARE(found.take(QStringLiteral("Text")).toString(), options.text);
    QCOMPARE(found.take(QStringLiteral("PlayTimes")).toInt(), 1);
    QCOMPARE(found, expected);
    QCOMPARE(authored.node.neonEffect, qMax(0, options.neon));
    QCOMPARE(authored.node.files.value(QStringLiteral("FillImage")), options.picture);
}

void AuthorTest::rows()
{
    AuthorOptions options = Options(QStringLiteral("fi 😀"));
    options.font.setPixelSize(32);
    options.font.setBold(true);
    options.color = QColor(1, 2, 3);
    AuthoredNode authored;
    QString error;
    QVERIFY(AuthorNode(options, &authored, &error));
    for (const auto& rows : authored.node.lists)
        QCOMPARE(rows.size(), 5);
    const QHash<QString, QString> expected = {
        {QStringLiteral("fontName"), QStringLiteral("DejaVu Sans")},
        {QStringLiteral("fontSize"), QStringLiteral("24")},
        {QStringLiteral("bold"), QStringLiteral("1")},
        {QStringLiteral("italic"), QStringLiteral("0")},
        {QStringLiteral("underline"), QStringLiteral("0")},
        {QStringLiteral("Color"), QString::number(0x010203)}};
    QCOMPARE(authored.node.lists.value(QStringLiteral("TextAttribute")).last(), expected);
    QCOMPARE(Sum(authored.node, "TextWidth", "text_width"), authored.textSize.width());
    const QFontMetrics metrics(options.font);
    QCOMPARE(authored.textSize.height(), metrics.ascent() + metrics.descent());
    QCOMPARE(Sum(authored.node, "TextHeight", "text_height"), 3 * authored.textSize.height());
}

void AuthorTest::sizes()
{
    AuthoredNode authored;
    QString error;
    AuthorOptions options = Options();
    QVERIFY(AuthorNode(options, &authored, &error));
    QVERIFY(authored.node.size.height() >= authored.textSize.height());
    QCOMPARE(authored.pages, 1);

    options.area = QSize(60, 40); // the letters become as large as fits
    QVERIFY(AuthorNode(options, &authored, &error));
    QCOMPARE(authored.node.size, options.area);
    QVERIFY(authored.textSize.height() <= 40 && authored.textSize.height() > 36);
    QVERIFY(authored.pages > 1);

    options = Options();
    options.mode = Mode::Scroll;
    options.motion = 2; // a column, shown several characters at a time
    QVERIFY(AuthorNode(options, &authored, &error));
    QVERIFY(authored.node.size.height() > authored.node.size.width());
}

void AuthorTest::refusals_data()
{
    QTest::addColumn<AuthorOptions>("options");

    AuthorOptions options = Options();
    options.area = QSize(16384, 16384);
    options.font.setPixelSize(40);
    QTest::newRow("area of 1 GiB") << options;
    options = Options(QString(2000, QLatin1Char('W')));
    options.mode = Mode::Scroll;
    options.motion = 0;
    options.font.setPixelSize(400);
    options.area = QSize(500, 500);
    QTest::newRow("line of 2 GiB") << options;
}

void AuthorTest::refusals()
{
    QFETCH(AuthorOptions, options);
    AuthoredNode authored;
    QString error;
    QVERIFY(!AuthorNode(options, &authored, &error));
    QVERIFY(error.contains(QLatin1String("MiB")) && !error.contains(QLatin1Char('\n')));
}

QTEST_MAIN(AuthorTest)
#include "tst_author.moc"
