// Authoring as its user meets it: lines of shell, what they print and what they leave.
#include "testfolder.h"

#include "scene/scene.h"

#include <QtTest>

using namespace AnimText;

class tst_authorcommand : public QObject
{
    Q_OBJECT

private slots:
    void init() { folder.reset(new TestFolder); }

    void refusals_data()
    {
        QTest::addColumn<QString>("complaint");
        const auto row = [](const char* line, const char* complaint) {
            QTest::newRow(line) << QString(complaint);
        };
        row("author -o s.json --text a --font DejaVuSans", "did you mean DejaVu Sans?");
        row("author -o s.json --text a --font 'Dejvu'", "did you mean DejaVu");
        row("fonts 'Dejavu Sens'", "did you mean DejaVu Sans?");
        row("author -o film.gif --text a", "ends in .json");
        row("author -o s.json --text a --pos -600,0", "on a display");
        row("author -o s.json --text a --pos 20000,0", "$.display.width: expected");
        row("author -o s.json --text a --page 3", "there is no page 3; expected 1 to 1");
        row("author -o s.json --text a --in-area 1", "found no such file");
        row("author -o s.json --text a --area 9x9 --in-area 1", "there is no area 1 on page 1");
        row("author -o s.json --text a --replace 1", "there is no text 1");
        row("author -o s.json --text a --replace 1 --page 1", "--replace excludes");
        row("author -o s.json --text a --padding 5 --area 90x10", "leaves nothing");
        row("author -o s.json --text a --fit both", "needs --area");
        row("author -o s.json --text a --fit both --area 9x9 --size 9", "excludes --size");
        row("author -o s.json --text a --fit both --area 9x9 --scroll up", "that stand");
        row("author -o s.json --text a --align left --scroll left", "that stand");
        row("author -o s.json --text aaaa --underline --size 2000 --scroll left --area 1x16384",
            "MiB");
        row("author -o s.json --markup --text '<b>a</i>'", "the markup at 1:");
        row("author -o s.json --markup --text '1 < 2'", "&lt; stands for <");
        row("author -o s.json --markup --text '<q>a</q>'",
            "the markup at 1:4: there is no tag <q>");
        row("author -o s.json --markup --text '<b x=\"1\">a</b>'", "<b> takes no attributes");
        row("author -o s.json --markup --text '<font sice=\"1\">a</font>'", "not sice");
        row("author -o s.json --markup --text '<font size=\"0\">a</font>'", "size takes 32");
        row("author -o s.json --markup --text '<font size=\"2001\">a</font>'", "size takes 32");
        row("author -o s.json --markup --text '<font color=\"mud\">a</font>'", "no colour \"mud\"");
        row("author -o s.json --markup --text '<font face=\"Monospce\">a</font>'",
            "no font family");
        row("set s.json 1 hold=1", "there is no such file");
        row("set s.json 1 hold", "KEY=VALUE");
        row("remove s.json 1", "there is no such file");
        row("list s.json", "found no such file");
    }

    // One line that says what is wrong, and nothing left behind.
    void refusals()
    {
        QFETCH(QString, complaint);
        const Outcome outcome = Run(QTest::currentDataTag());
        QVERIFY(outcome.status == 1 || outcome.status == 2);
        QVERIFY2(outcome.errors.contains(complaint.toUtf8()), outcome.errors.constData());
        QVERIFY(outcome.errors.startsWith("animtext: ") && outcome.errors.count('\n') == 1);
        QVERIFY(outcome.out.isEmpty() && folder->Listing().isEmpty());
    }

    void tellsOfLosses_data()
    {
        QTest::addColumn<QString>("warning"); // the only one
        const auto row = [](const char* words, const char* warning) {
            QTest::newRow(words) << QString(warning);
        };
        row("--text 'a Donaudampfschifffahrt z Donaudampfer z' --area 90x40",
            "2 words are wider than a page and torn: Donaudampfschifffahrt, Donaudampfer\n");
        row("--text 'aaa bbb ccc' --tear-words --area 90x40", "");
        row("--text xg --size 60 --area 300x40", ": 0 pixels above the area and");
        row("--text o --size 50 --area 300x40", ""); // its line is too high, its ink is not
        row("--text Gx --underline --area 300x40", "");
        row("--markup --text '<font color=\"red\">a</font>b'",
            "colors-ignored at $.pages[0].areas[0].nodes[0].lists.TextAttribute[1].Color: found");
        row("--text $'a\\nb\\ue123'", "a line break became a space\nanimtext: character 4, ");
        row("--markup --text '<html>a<s>b</s><sup>c</sup><img src=\"x\"></html>'",
            "left out, for no sign shows it: bars through or above letters, raised or lowered "
            "letters, pictures\n");
    }

    void tellsOfLosses()
    {
        QFETCH(QString, warning);
        const Outcome outcome = Run("author -o s.json " + QByteArray(QTest::currentDataTag()));
        QCOMPARE(outcome.status, 0);
        QVERIFY2(outcome.errors.contains(warning.toUtf8()) || warning.isEmpty(), outcome.errors);
        QCOMPARE(outcome.errors.isEmpty(), warning.isEmpty());
        QCOMPARE(outcome.errors.count('\n'), qMax(warning.count('\n'), warning.isEmpty() ? 0 : 1) +
                                                 (warning.endsWith(' ') ? 1 : 0));
    }

    void markup_data()
    {
        QTest::addColumn<QString>("rows"); // family's last word, points, bold italic underline,
                                           // colour, of each unit
        const auto row = [](const char* words, const char* rows) {
            QTest::newRow(words) << QString(rows);
        };
        const char* const tags =
            "--size 40 --bold --text '<i>a</i><font size=\"50%\">b<u>&lt;</u></font><font "
            "size=\"24pt\" face=\"DejaVu Serif\" color=\"#010203\">&amp;</font>'";
        row(tags, "Sans 30 110 16752640|Sans 15 100 16752640|Sans 15 101 16752640|"
                  "Serif 24 100 66051");
        row("--text '<html><body style=\"font-family:DejaVu Serif; font-size:12pt\"><p>a</p><p>"
            "<span style=\"font-size:32px; font-weight:600; text-decoration: underline; "
            "color:#ff0000\">b</span></p></body></html>'",
            "Serif 12 000 16752640|Serif 12 000 16752640|Serif 24 101 16711680");
        // Without a size it is fitted; the proportions stay.
        row("--area 300x41 --text 'a<font size=\"200%\">b</font>'",
            "Sans 13 000 16752640|Sans 26 000 16752640");
        row("--area 300x41 --text '<font size=\"20px\">b</font>'", "Sans 15 000 16752640");
        row("--fit both --area 30x100 --text 'm<font size=\"24px\">m</font>'",
            "Sans 15 000 16752640|Sans 8 000 16752640");
    }

    void markup()
    {
        QFETCH(QString, rows);
        const Outcome outcome =
            Run("author -o s.json --markup " + QByteArray(QTest::currentDataTag()));
        QVERIFY2(outcome.status == 0, outcome.errors);
        QStringList found;
        for (const auto& row : Read().Nodes().first()->lists["TextAttribute"])
            found.append(row["fontName"].section(' ', -1) + ' ' + row["fontSize"] + ' ' +
                         row["bold"] + row["italic"] + row["underline"] + ' ' + row["Color"]);
        QCOMPARE(found.join('|'), rows);
    }

    void severalTexts()
    {
        const auto run = [this](const QByteArray& line, int status = 0) {
            const Outcome outcome = Run(line);
            if (outcome.status != status)
                qWarning("%s: %s", line.constData(), outcome.errors.constData());
            return outcome.status == status;
        };
        QVERIFY(run("author -o s.json --text one --area 90x30"));
        QVERIFY(run("author -o s.json --text two --append --pos 0,100"));
        QCOMPARE(Read().display, QSize(90, 30)); // nobody asked for another
        QVERIFY(run("author -o s.json --text three --page 2 --area 40x20 --pos 7,8"));
        QVERIFY(run("author -o s.json --text four --page 2 --in-area 1 --display 99x130"));
        QVERIFY(run("author -o s.json --text zwei --replace 2 --area 50x30 --no-alpha"));
        Scene scene = Read();
        QCOMPARE(scene.display, QSize(99, 130));
        QVERIFY(!scene.alphaBlend);
        QCOMPARE(scene.pages.size(), 2);
        QCOMPARE(scene.pages[1].areas[0].nodes[1].size, QSize(40, 20));
        QCOMPARE(scene.pages[1].areas[0].nodes[1].pos, QPoint(7, 8));
        const QByteArray list = Run("list s.json").out;
        QCOMPARE(list.count('\n'), 4);
        QVERIFY2(list.contains("  2  page 1 area 2  50 x 30 at 0,0  WordForWordOutputEffect, "
                               "speed 5, hold 2 s  \"zwei\"\n"),
                 list);
        QVERIFY(Run("list s.json --json").out.contains("\"path\": \"$.pages[1].areas[0].nodes[1]"));

        QVERIFY(run("set s.json 4 speed=7 hold=5 effect=SwingEffect plays=2 pos=-1,2 color=#010203 "
                    "hollow=1 CheckNeonBg=1 neonEffect=3"));
        QVERIFY(run("set s.json '$.pages[1].areas[0].nodes[0]' speed=1"));
        scene = Read();
        const SceneNode& four = *scene.Nodes()[3];
        const QMap<QString, QVariant> wanted{
            {"Text", "four"},       {"EffectType", 0}, {"AnimationSpeed", 7}, {"PlayTimes", 2},
            {"AnimationEffect", 6}, {"Hollow", 1},     {"CheckNeonBg", 1}};
        QCOMPARE(four.attributes, wanted);
        QCOMPARE(four.hold, 5);
        QCOMPARE(four.neonEffect, 3);
        QCOMPARE(four.pos, QPoint(-1, 2));
        QCOMPARE(four.lists["TextAttribute"].last()["Color"], QString("66051"));
        QCOMPARE(scene.Nodes()[2]->attributes["AnimationSpeed"], QVariant(1));

        const QByteArray before = folder->Read("s.json");
        for (const char* refused :
             {"4 speed=10", "4 effect=1", "4 scroll=left", "5 speed=1", "0 speed=1", "x speed=1",
              "4 Text=a", "4 size=1,1", "4 hold=a", "4 pos=1", "4 color=mud", "4 effect=Swng",
              "'$.pages[0].areas[0].nodes[1]' speed=1"})
            QVERIFY(run(QByteArray("set s.json ") + refused, 2));
        QCOMPARE(folder->Read("s.json"), before);

        const int files = folder->Listing().size();
        QVERIFY(run("remove s.json 2") && run("remove s.json 3") && run("remove s.json 2"));
        QCOMPARE(Read().pages.size(), 1);
        QCOMPARE(Read().pages[0].areas.size(), 1);
        QVERIFY(folder->Listing().size() < files);
        QVERIFY(run("author -o s.json --text up --scroll up") && run("set s.json 1 scroll=down"));
        QVERIFY(run("set s.json 1 scroll=left", 2) && run("set s.json 1 speed=3"));
        QCOMPARE(Read().Nodes()[0]->attributes["ContinueSpeed"], QVariant(3));
        QVERIFY(run("validate --strict s.json"));
    }

private:
    Outcome Run(const QByteArray& words) const { return folder->Shell("animtext " + words); }
    Scene Read() const
    {
        Scene scene;
        QString error;
        if (!ReadScene(folder->Path("s.json"), &scene, &error))
            qFatal("%s", qPrintable(error));
        return scene;
    }

    QScopedPointer<TestFolder> folder;
};

QTEST_GUILESS_MAIN(tst_authorcommand)
#include "tst_authorcommand.moc"
