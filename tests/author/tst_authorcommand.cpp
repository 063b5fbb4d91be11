#include "scene.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace AnimText;

namespace {

QStringList Words(const char* words)
{
    return QString::fromUtf8(words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

/** The program as its user meets it. */
class AuthorCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void refusals_data();
    void refusals();
    void wishes();
    void notesOnTheText();
    void appends();
    void validates_data();
    void validates();

private:
    /** Runs animtext in the folder of the test. @return its exit status */
    int Run(const QStringList& words, const QByteArray& input = QByteArray())
    {
        QProcess program;
        program.setWorkingDirectory(folder->path());
        program.start(QStringLiteral(ANIMTEXT_PROGRAM), words);
        program.write(input);
        program.closeWriteChannel();
        if (!program.waitForFinished(60000))
            qFatal("%s does not end", ANIMTEXT_PROGRAM);
        output = program.readAllStandardOutput();
        errors = program.readAllStandardError();
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }
    Scene Read()
    {
        Scene scene;
        QString error;
        if (!ReadScene(folder->filePath(QStringLiteral("s.json")), &scene, &error))
            qFatal("%s", qPrintable(error));
        return scene;
    }

    QScopedPointer<QTemporaryDir> folder;
    QByteArray output;
    QByteArray errors;
};

void AuthorCommandTest::init()
{
    folder.reset(new QTemporaryDir);
}

void AuthorCommandTest::refusals_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("complaint");

    const auto row = [](const char* words, const char* complaint) {
        QTest::newRow(words) << QString::fromUtf8(words) << QString::fromUtf8(complaint);
    };
    row("--text a", "expected -o SCENE.json");
    row("-o s.json", "expected --text");
    row("-o s.json --text a --text-file b", "exclude each other");
    row("-o s.json --text-file none", "none: cannot be read");
    row("-o s.json --text-file -", "expected UTF-8");
    row("-o s.json --text \u0007", "U+0007");
    row("-o s.json --text a --font DejaVuSans", "did you mean DejaVu Sans?");
    row("-o s.json --text a --effect Swing", "did you mean SwingEffect?");
    row("-o s.json --text a --effect WavesEfect", "did you mean WavesEffect?");
    row("-o s.json --text a --effect 30", "there is no effect \"30\"");
    row("-o s.json --text a --scroll leftwards", "left, right, up or down");
    row("-o s.json --text a --scroll left --effect 4", "exclude each other");
    row("-o s.json --text a --color ornge", "did you mean orange?");
    row("-o s.json --text a --color #ffa00", "expected a name or #rrggbb");
    row("-o s.json --text a --speed 10", "from 0 to 9");
    row("-o s.json --text a --size 0", "from 4 to 2000");
    row("-o s.json --text a --area 100", "like 512x64");
    row("-o s.json --text a --area 100x0", "from 1 to");
    row("-o s.json --text a --area 16384x16384", "MiB");
    row("-o s.json --text a --pos 1", "like 16,0");
    row("-o s.json --text a --neon 29", "go together");
    row("-o s.json --text a --neon 3 --neon-picture x", "go together");
    row("-o s.json --text a --dazzle=blue", "takes plain");
    row("-o s.json --text a --picture x", "add --dazzle");
    row("-o s.json --text a --dazzle --picture none", "there is no file none");
    row("-o none/s.json --text a", "there is no folder none");
    row("-o . --text a", "is a folder");
}

// One line that says what is wrong, and nothing left behind.
void AuthorCommandTest::refusals()
{
    QFETCH(QString, words);
    QFETCH(QString, complaint);
    const int status =
        Run(QStringList(QStringLiteral("author")) + words.split(QLatin1Char(' ')), "\xff\xfe");
    QVERIFY(status == 1 || status == 2);
    QVERIFY2(errors.contains(complaint.toUtf8()), errors.constData());
    QVERIFY(errors.startsWith("animtext: ") && errors.endsWith('\n') && errors.count('\n') == 1);
    QCOMPARE(output, QByteArray());
    QVERIFY(QDir(folder->path()).isEmpty());
}

void AuthorCommandTest::wishes()
{
    QVERIFY(QFile(folder->filePath(QStringLiteral("p.png"))).open(QIODevice::WriteOnly));
    const QStringList words = Words("author -o s.json --text Grüße --effect wavesEFFECT --speed 7 "
                                    "--hold 3 --plays 2 --area 300x40 --pos 5,6 --no-alpha "
                                    "--display 400x50 --dazzle --picture p.png --neon 4 "
                                    "--color #010203 --bold --underline --hollow");
    QCOMPARE(Run(words), 0);
    QVERIFY2(errors.isEmpty(), errors.constData());
    const Scene scene = Read();
    const SceneNode& node = *scene.Nodes().first();
    QCOMPARE(scene.display, QSize(400, 50));
    QVERIFY(!scene.alphaBlend);
    QCOMPARE(node.size, QSize(300, 40));
    QCOMPARE(node.pos, QPoint(5, 6));
    QCOMPARE(node.hold, 3);
    QCOMPARE(node.neonEffect, 4);
    QCOMPARE(node.attributes.value(QStringLiteral("Text")).toString(), QStringLiteral("Grüße"));
    const auto number = [&](const char* key) {
        return node.attributes.value(QLatin1String(key)).toInt();
    };
    QCOMPARE(number("AnimationEffect"), 5);
    QCOMPARE(number("AnimationSpeed"), 7);
    QCOMPARE(number("PlayTimes"), 2);
    QCOMPARE(number("CheckDazzle"), 1);
    QCOMPARE(number("CheckColorGradient"), 0);
    QCOMPARE(number("Hollow"), 1);
    const auto style = node.lists.value(QStringLiteral("TextAttribute")).first();
    QCOMPARE(style.value(QStringLiteral("Color")), QString::number(0x010203));
    QCOMPARE(style.value(QStringLiteral("underline")), QStringLiteral("1"));
    QCOMPARE(node.files.value(QStringLiteral("FillImage")), QStringLiteral("p.png"));
}

void AuthorCommandTest::notesOnTheText()
{
    QCOMPARE(Run(Words("author -o s.json --text-file - --scroll up"), "a\nb\xee\x84\xa3\n"), 0);
    QVERIFY(errors.contains("a line break became a space"));
    QVERIFY(errors.contains("character 4, \"\xee\x84\xa3\" (U+E123), leaves a gap"));
    QCOMPARE(Read().Nodes().first()->attributes.value(QStringLiteral("ContinueStyle")).toInt(), 2);

    QCOMPARE(Run(Words("author -o s.json --text abc --size 100 --area 50x60")), 0);
    QVERIFY(errors.contains("character-wide") && errors.contains("text-high"));
}

void AuthorCommandTest::appends()
{
    QCOMPARE(Run(Words("author -o s.json --text one --append")), 0);
    QCOMPARE(Run(Words("author -o s.json --text two --append --pos 0,100")), 0);
    const Scene scene = Read();
    QCOMPARE(scene.Nodes().size(), 2);
    QCOMPARE(scene.display.height(), 100 + scene.Nodes().last()->size.height());
    QCOMPARE(Run(Words("validate s.json --strict")), 0);

    QFile broken(folder->filePath(QStringLiteral("s.json")));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("{") == 1);
    broken.close();
    QCOMPARE(Run(Words("author -o s.json --text three --append")), 2);
    QCOMPARE(broken.size(), 1);
}

void AuthorCommandTest::validates_data()
{
    QTest::addColumn<QString>("replaced"); // in a sound scene
    QTest::addColumn<QString>("by");
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("printed");

    const QString speed = QStringLiteral("\"AnimationSpeed\": 5");
    const QString plays = QStringLiteral("\"PlayTimes\": 1");
    const auto row = [](const char* name, const QString& replaced, const char* by,
                        const char* words, int status, const char* printed) {
        QTest::newRow(name) << replaced << QString::fromLatin1(by) << QString::fromLatin1(words)
                            << status << QString::fromLatin1(printed);
    };
    row("clean", QString(), "", "", 0, "no mistakes found");
    row("clean as JSON", QString(), "", "--json", 0, "\"errors\": 0");
    row("warning", plays, "\"PlayTimes\": 0", "", 0, "warning plays-range at $.pages[0]");
    row("strict warning", plays, "\"PlayTimes\": 0", "--strict", 1, "0 errors, 1 warning");
    row("error", speed, "\"AnimationSpeed\": 12", "", 2, "error speed-range at $.pages[0]");
    row("strict error as JSON", speed, "\"AnimationSpeed\": 12", "--strict --json", 2,
        "\"code\": \"speed-range\"");
    row("no JSON", speed, "\"AnimationSpeed\": ", "", 2, "scene-unreadable");
}

void AuthorCommandTest::validates()
{
    QFETCH(QString, replaced);
    QFETCH(QString, by);
    QFETCH(QString, words);
    QCOMPARE(Run(Words("author -o s.json --text abc")), 0);
    QFile scene(folder->filePath(QStringLiteral("s.json")));
    QVERIFY(scene.open(QIODevice::ReadWrite));
    QByteArray json = scene.readAll();
    QVERIFY(json.contains(replaced.toUtf8()));
    if (!replaced.isEmpty())
        json.replace(replaced.toUtf8(), by.toUtf8());
    QVERIFY(scene.resize(0) && scene.seek(0) && scene.write(json) == json.size());
    scene.close();

    QTEST(Run(Words("validate s.json") + Words(qPrintable(words))), "status");
    QFETCH(QString, printed);
    QVERIFY2(output.contains(printed.toUtf8()), output.constData());
}

QTEST_GUILESS_MAIN(AuthorCommandTest)
#include "tst_authorcommand.moc"
