#include "testfolder.h"

#include "scene/scene.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

using namespace AnimText;

/** The program as its user meets it. */
class tst_authorcommand : public QObject
{
    Q_OBJECT

private slots:
    void init() { folder.reset(new TestFolder); }

    void refusals_data()
    {
        QTest::addColumn<QString>("complaint");
        const auto row = [](const char* words, const char* complaint) {
            QTest::newRow(words) << QString(complaint);
        };
        row("--text a", "expected -o SCENE.json");
        row("-o s.json", "expected --text");
        row("-o s.json --text a --text-file b", "exclude each other");
        row("-o s.json --text-file -", "expected UTF-8");
        row("-o s.json --text \u0007", "U+0007");
        row("-o s.json --text a --font DejaVuSans", "did you mean DejaVu Sans?");
        row("-o s.json --text a --effect WavesEfect", "did you mean WavesEffect?");
        row("-o s.json --text a --effect 30", "there is no effect \"30\"");
        row("-o s.json --text a --scroll leftwards", "left, right, up or down");
        row("-o s.json --text a --scroll left --effect 4", "exclude each other");
        row("-o s.json --text a --color #ffa00", "expected a name or #rrggbb");
        row("-o s.json --text a --speed 10", "from 0 to 9");
        row("-o s.json --text a --area 100", "like 512x64");
        row("-o s.json --text a --area 100x0", "from 1 to");
        row("-o s.json --text a --area 16384x16384", "MiB");
        row("-o s.json --text WWWW --scroll left --size 2000 --area 1x16384", "MiB");
        row("-o s.json --text a --neon 3 --neon-picture x", "go together");
        row("-o s.json --text a --dazzle=blue", "takes plain");
        row("-o s.json --text a --picture x", "add --dazzle");
        row("-o s.json --text a --dazzle --picture none", "there is no file none");
        row("-o . --text a", "is a folder");
    }

    // One line that says what is wrong, and nothing left behind.
    void refusals()
    {
        QFETCH(QString, complaint);
        const int status = Run("author " + QByteArray(QTest::currentDataTag()), "\xff\xfe");
        QVERIFY(status == 1 || status == 2);
        QVERIFY2(errors.contains(complaint.toUtf8()), errors.constData());
        QVERIFY(errors.startsWith("animtext: ") && errors.indexOf('\n') == errors.size() - 1);
        QCOMPARE(output, QByteArray());
        QVERIFY(folder->Listing().isEmpty());
    }

    void wishes()
    {
        folder->Write("p.png", "");
        QCOMPARE(Run("author -o s.json --text Grüße --effect wavesEFFECT --speed 7 --hold 3 "
                     "--plays 2 --area 300x40 --pos 5,6 --no-alpha --display 400x50 --neon 4 "
                     "--dazzle=conical --picture p.png --color #010203 --bold --underline --hollow "
                     "--size 32"),
                 0);
        QVERIFY2(errors.isEmpty(), errors.constData());
        const Scene scene = Read();
        const SceneNode& node = *scene.Nodes().first();
        QCOMPARE(scene.display, QSize(400, 50));
        QVERIFY(!scene.alphaBlend);
        QCOMPARE(node.size, QSize(300, 40));
        QCOMPARE(node.pos, QPoint(5, 6));
        QCOMPARE(node.hold, 3);
        QCOMPARE(node.neonEffect, 4);
        const QByteArray attributes = QJsonDocument(QJsonObject::fromVariantMap(node.attributes))
                                          .toJson(QJsonDocument::Compact);
        QCOMPARE(attributes,
                 QByteArray(R"({"AnimationEffect":5,"AnimationSpeed":7,"CheckColorGradient":1,)"
                            R"("CheckDazzle":1,"CheckNeonBg":1,"CheckPictureFills":1,)"
                            R"("ColorGradient":2,"EffectType":0,"Hollow":1,"PlayTimes":2,)"
                            R"("Text":"Grüße"})"));
        const auto style = node.lists.value("TextAttribute").last();
        QCOMPARE(style["fontName"], QString("DejaVu Sans"));
        QCOMPARE(style["Color"], QString::number(0x010203));
        QCOMPARE(style["bold"] + style["italic"] + style["underline"], QString("101"));
        QCOMPARE(style["fontSize"], QString("24")); // points
        QCOMPARE(node.files["FillImage"], QString("p.png"));
    }

    void notesOnTheText()
    {
        QCOMPARE(Run("author -o s.json --text-file - --scroll up --speed 9", "a\nb\xee\x84\xa3\n"),
                 0);
        QVERIFY(errors.contains("a line break became a space"));
        QVERIFY(errors.contains("character 4, \"\xee\x84\xa3\" (U+E123), leaves a gap"));
        const Scene scene = Read();
        const QMap<QString, QVariant> attributes = scene.Nodes().first()->attributes;
        QCOMPARE(attributes["EffectType"], QVariant(1));
        QCOMPARE(attributes["ContinueStyle"], QVariant(2));
        QCOMPARE(attributes["ContinueSpeed"], QVariant(9));

        const QSize size = scene.Nodes().first()->size;
        QVERIFY(size.height() > size.width()); // a column, shown several characters at a time

        QCOMPARE(Run("author -o s.json --text abc --size 100 --area 50x60"), 0);
        QVERIFY(errors.contains("character-wide") && errors.contains("text-high"));
        QCOMPARE(Run("author -o s.json --text abc --area 60x40"), 0); // as large as fits
        const auto rows = Read().Nodes().first()->lists["TextHeight"];
        const int height = rows.first()["text_height"].toInt();
        QVERIFY(height > 36 && height <= 40);
    }

    void appends()
    {
        QCOMPARE(Run("author -o s.json --text one --append"), 0);
        QCOMPARE(Run("author -o s.json --text two --append --pos 0,100"), 0);
        const Scene scene = Read();
        QCOMPARE(scene.Nodes().size(), 2);
        QCOMPARE(scene.display.height(), 100 + scene.Nodes().last()->size.height());
        QCOMPARE(Run("validate s.json --strict"), 0);
        folder->Write("s.json", "{");
        QCOMPARE(Run("author -o s.json --text three --append"), 2);
        QCOMPARE(folder->Read("s.json"), QByteArray("{"));
    }

    void validates_data()
    {
        QTest::addColumn<QByteArray>("by"); // in place of the speed of a sound scene
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("printed");
        const auto row = [](const char* words, const char* by, int status, const char* printed) {
            QTest::newRow(words) << QByteArray(by) << status << QByteArray(printed);
        };
        row("validate s.json", "5", 0, "no mistakes found");
        row("validate  s.json", "5, \"Stroke\": 1", 0, "warning stroke-ignored at $.pages[0]");
        row("validate s.json --strict", "5, \"Stroke\": 1", 1, "s.json: 0 errors, 1 warning\n");
        row("validate --strict s.json", "12", 2, "error speed-range at $.pages[0]");
        row("validate s.json --strict --json", "12", 2, "\"errors\": 1");
        row("validate s.json --json", ",", 2, "\"code\": \"scene-unreadable\"");
    }

    void validates()
    {
        QFETCH(QByteArray, by);
        QFETCH(QByteArray, printed);
        Run("author -o s.json --text abc");
        const QByteArray speed = "\"AnimationSpeed\": ";
        folder->Write("s.json", folder->Read("s.json").replace(speed + "5", speed + by));
        QTEST(Run(QTest::currentDataTag()), "status");
        QVERIFY2(output.contains(printed), output.constData());
    }

private:
    /** Runs animtext in the folder of the test. @return its exit status */
    int Run(const QByteArray& words, const QByteArray& input = QByteArray())
    {
        QProcess program;
        program.setWorkingDirectory(folder->Path("."));
        program.start(ANIMTEXT_PROGRAM, QString(words).split(' ', Qt::SkipEmptyParts));
        program.write(input);
        program.closeWriteChannel();
        if (!program.waitForFinished(60000))
            qFatal("%s does not end", ANIMTEXT_PROGRAM);
        output = program.readAllStandardOutput();
        errors = program.readAllStandardError();
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }
    Scene Read() const
    {
        Scene scene;
        QString error;
        if (!ReadScene(folder->Path("s.json"), &scene, &error))
            qFatal("%s", qPrintable(error));
        return scene;
    }
    QScopedPointer<TestFolder> folder;
    QByteArray output;
    QByteArray errors;
};

QTEST_GUILESS_MAIN(tst_authorcommand)
#include "tst_authorcommand.moc"
