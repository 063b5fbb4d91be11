// The program as its user meets it: lines of shell, what they print and how they end.
#include "testscene.h"

#include <QCryptographicHash>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <csignal>

using namespace AnimText;

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        files.reset(new TestScenes);
        files->Save(files->Of({files->Node({})}), "one.json"); // 4 pictures at speed 9
        files->Save(files->Of({files->Node({"abcdef", 9, 9, 3})}), "two.json"); // of two pages
        files->Save(files->Of({files->Node({"abc", 4, 9, 0, 1000000})}), "endless.json");
        files->Write("bad.json",
                     R"({"scene": 1, "display": {"width": 8, "height": 8}, "pages": 1})");
    }

    void succeeds_data()
    {
        QTest::addColumn<QByteArray>("expected"); // on standard output
        const auto row = [](const char* line, const char* expected) {
            QTest::newRow(line) << QByteArray(expected);
        };
        row("animtext --version", "animtext " ANIMTEXT_VERSION "\n");
        row("animtext --help", "  trace       prints what every tick");
        row("animtext help trace", "Usage: animtext trace [options] SCENE.json\n");
        row("animtext trace -h --tick", "  -n, --ticks N "); // wrong words after the help
        row("animtext sheet --help", "Usage: animtext sheet -o SHEET.png [options] SCENE.json...");
        row("animtext effects | grep Swing", "  6  SwingEffect ");
        row("animtext effects | wc -l", "37\n"); // 30 and 4, two headings, one line between
        row("animtext effects --json | grep -c summary", "34\n");
        row("animtext trace one.json -n 2 | wc -l", "3\n");
        row("animtext trace one.json -n2 | wc -l", "3\n");
        row("animtext trace --ticks=2 -- one.json | wc -l", "3\n");
        row("animtext trace --ticks 5 one.json --ticks 2 | wc -l", "3\n"); // the last one counts
        row("animtext trace - -n 0 <one.json", "\"swap\":true");
        row("cp one.json ./-n; animtext trace --ticks 0 -- -n", "\"swap\":true");
        row("cp one.json $'\\xff.json'; animtext trace $'\\xff.json' -n 0; rm $'\\xff.json'",
            "\"swap\":true");
        row("animtext sheet - one.json -o - <two.json | head -c 4", "\x89PNG");
        row("animtext sheet one.json -o a.png && head -c 4 a.png", "\x89PNG");
        row("DISPLAY= QT_QPA_PLATFORM=xcb animtext author --text a -o a.json", "one character of");
        row("QT_QPA_PLATFORM=none QT_QPA_PLATFORMTHEME=none animtext duration one.json", "0.20 s");
        row("animtext render one.json -o a/ --seconds 0.5 && ls a | wc -l", "8\n");
        row("animtext render one.json -o a/ --seconds 0.5s && ls a | wc -l", "8\n");
        row("animtext render one.json -o a/ --seconds 528ms && ls a | wc -l", "8\n");
        row("animtext render one.json -o a/ --frames 1-2 && ls a",
            "frame-0001.png\nframe-0002.png\n");
        row("animtext author --text a --scroll ContinueEffectUp -o a.json",
            "; ContinueEffectUp in");
        row("animtext soak --hours 6min one.json", "simulated hours                 0.10");
        row("animtext duration two.json --simulate", "finished after");
        row("animtext validate one.json", "no mistakes found");
        row("animtext completion zsh | head -n 1", "#compdef animtext");
        row("animtext completion bash >a; . ./a; COMP_WORDS=(animtext author --dazzle r);"
            "COMP_CWORD=3; _animtext; echo $COMPREPLY",
            "radial\n");
        row("animtext completion bash >a; . ./a; COMP_WORDS=(animtext s);"
            "COMP_CWORD=1; _animtext; echo ${COMPREPLY[@]}",
            "sheet soak\n");
        row("animtext completion bash >a; . ./a; COMP_WORDS=(animtext trace --t);"
            "COMP_CWORD=2; _animtext; echo ${COMPREPLY[@]}",
            "--ticks\n");
        row("animtext completion bash >a; . ./a; COMP_WORDS=(animtext trace one);"
            "COMP_CWORD=2; _animtext; echo ${COMPREPLY[@]}",
            "one.json\n");
    }

    void succeeds()
    {
        QFETCH(QByteArray, expected);
        const Outcome outcome = files->Shell(QTest::currentDataTag());
        QVERIFY2(outcome.out.contains(expected), outcome.out + outcome.errors);
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
    }

    void refuses_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* line, int status, const char* expected) {
            QTest::newRow(line) << status << QString(expected);
        };
        // Of every command.
        row("animtext", 2, "expected a command (see animtext help)");
        row("animtext rendr one.json", 2, "did you mean render?");
        row("animtext help trac", 2, "did you mean trace?");
        row("animtext completion tcsh", 2, "expected bash, zsh or fish");
        row("animtext trace", 2, "expected SCENE.json (see animtext help trace)");
        row("animtext trace one.json two.json", 2, "\"two.json\" is one word too many");
        row("animtext trace one.json --tiks 3", 2, "unknown option --tiks; did you mean --ticks?");
        row("animtext trace one.json -ticks 3", 2, "unknown option -ticks; did you mean --ticks?");
        row("animtext trace one.json -x", 2, "unknown option -x");
        row("animtext trace one.json --ticks", 2, "--ticks takes N, which is missing");
        row("animtext trace one.json --calls=yes", 2, "--calls takes no value");
        row("animtext trace one.json --plugin ''", 2, "--plugin takes the name of a file");
        row("animtext trace none.json", 2, "none.json: expected a scene file, found no such file");
        row("animtext trace bad.json", 2, "bad.json: $.pages: expected a list");
        row("animtext trace - </dev/null", 2, "-:1:1: expected valid JSON");
        row("animtext trace one.json --plugin none.so", 1, "there is no plugin at");
        row("animtext trace one.json --plugin one.json", 1, "cannot be loaded");
        for (const char* line :
             {"animtext --version", "animtext help", "animtext completion fish", "animtext effects",
              "animtext trace one.json", "animtext trace one.json -n 5000",
              "animtext soak one.json"
              " --hours 0",
              "animtext sheet one.json -o -", "animtext duration one.json --table",
              "animtext validate one.json"})
            row(qPrintable(line + QString(" >/dev/full")), 1, "standard output cannot be written");
        // Values and their ranges.
        row("animtext trace one.json --ticks many", 2, "from 0 to 1000000000, not \"many\"");
        row("animtext trace one.json --ticks -1", 2, "a whole number from 0");
        row("animtext trace one.json --ticks 1000000001", 2, "a whole number from 0");
        row("animtext trace one.json --seed -1", 2, "from 0 to 2147483647");
        row("animtext sheet one.json -o a.png --columns 0", 2, "from 1 to 50");
        row("animtext sheet one.json -o a.png --columns 51", 2, "from 1 to 50");
        row("animtext soak --hours 8785", 2, "or a number from 0 to 8784");
        row("animtext soak --hours 8784.1h", 2, "or a number from 0 to 8784");
        row("animtext soak --growth nan", 2, "a number from 0 to 1000000");
        row("animtext soak --growth -1", 2, "a number from 0 to 1000000");
        row("animtext render one.json -o a.gif --scale 17", 2, "from 1 to 16");
        row("animtext render one.json -o a.gif --seconds -1", 2, "--seconds takes a time such as");
        row("animtext render one.json -o a.gif --seconds 2d", 2, "--seconds takes a time such as");
        row("animtext render one.json -o a.gif --seconds 86401", 2, "from 0.001 to 86400");
        row("animtext render one.json -o a.gif --seconds 0", 2, "from 0.001 to 86400");
        row("animtext render one.json -o a.gif --frames 2-99", 2, "the pictures 0 to 3");
        row("animtext render one.json -o a.gif --frames 2-1", 2, "the first and the last");
        row("animtext render one.json -o a.gif --frames 3-", 2, "one such as 5");
        row("animtext render one.json -o a.gif --at 4t", 2, "it has no picture 4");
        row("animtext render one.json -o a.gif --at 1t --frames 1", 2, "exclude each other");
        row("animtext render one.json -o a.png", 2, "say which with --at or --frames");
        row("animtext render one.json -o a.png --frames 0-1", 2, "say which with --at");
        row("animtext render one.json -o a.mp4 --transparent", 2, "cannot be transparent");
        row("animtext render one.json -o a.gif --lossless", 2, ".gif lose colors");
        row("animtext render one.json -o a.webm --lossless --transparent", 2, "transparent films");
        row("animtext render one.json -o a.gif --transparent --background red", 2, "exclude each");
        row("animtext render one.json ./one.json -o a", 2, "would both become one.gif");
        row("animtext render one.json -o a.gif --background mud", 2, "a color or #rrggbb");
        // Of single commands.
        row("animtext render one.json", 2, "expected -o OUT");
        row("animtext render one.json -o a.avi", 2, "expected a name that ends with .gif, .apng");
        row("animtext render one.json -o none/a.gif", 1, "none/a.gif cannot be written");
        row("animtext render one.json -o none/a/", 1, "no folder can be made in");
        row("animtext render one.json -o two.json/", 1, "is a file");
        row("animtext render bad.json -o a.gif", 2, "bad.json: $.pages");
        row("animtext render endless.json -o a.gif", 2, "say how much of it to play");
        row("animtext sheet one.json bad.json -o a.png", 2, "bad.json: $.pages");
        row("animtext sheet one.json -o none/a.png", 1, "cannot be written");
        row("animtext sheet one.json -o a.gif", 2, "ends with .png");
        row("animtext duration bad.json", 2, "bad.json: $.pages");
        row("animtext author --text a", 2, "expected -o SCENE.json");
        row("animtext author -o a.json", 2, "expected --text");
        row("animtext author -o a.json --text a --text-file b", 2, "exclude each other");
        row("animtext author -o a.json --text-file - <<<$'\\xff\\xfe'", 2, "expected UTF-8");
        row("animtext author -o a.json --text $'\\xff'", 2, "--text takes UTF-8");
        row("animtext author -o $'\\xff.json' --text a", 2, "names its data files after itself");
        row("animtext author -o a.json --text $'\\a'", 2, "U+0007");
        row("animtext author -o a.txt --text a", 2, "a name that ends in .json");
        row("animtext author -o bad.json --text a", 2, "$.pages: expected a list, found 1");
        row("animtext author -o bad.json --text a --append", 2,
            "bad.json: $.pages: expected a list");
        row("animtext author -o a.json --text a --font DejaVuSans", 2, "did you mean DejaVu Sans?");
        row("animtext author -o a.json --text a --effect WavesEfect", 2, "mean WavesEffect?");
        row("animtext author -o a.json --text a --effect shake", 2, "did you mean EffectShake?");
        row("animtext author -o a.json --text a --effect 30", 2,
            "from 0 to 29 or a name out of animtext effects, not \"30\"");
        row("animtext author -o a.json --text a --scroll lft", 2, "did you mean left?");
        row("animtext author -o a.json --text a --scroll left --effect 4", 2, "exclude each other");
        row("animtext author -o a.json --text a --color '#ffa00'", 2, "a color or #rrggbb");
        row("animtext author -o a.json --text a --color orrange", 2, "did you mean orange?");
        row("animtext author -o a.json --text a --size 3", 2, "from 4 to 2000");
        row("animtext author -o a.json --text a --speed 10", 2, "from 0 to 9");
        row("animtext author -o a.json --text a --plays 0", 2, "from 1 to 1000000");
        row("animtext author -o a.json --text a --hold -1", 2, "or a number from 0 to 1000000");
        row("animtext author -o a.json --text a --hold 250ms", 2, "whole tenths of a second");
        row("animtext author -o a.json --text a --area 100", 2, "a size like 512x64");
        row("animtext author -o a.json --text a --area 100x0", 2, "its sides from 1 to 16384");
        row("animtext author -o a.json --text a --display 1x16385", 2, "its sides from 1 to 16384");
        row("animtext author -o a.json --text a --area 16384x16384", 2, "MiB");
        row("animtext author -o a.json --text WWWW --scroll left --size 2000 --area 1x16384", 2,
            "MiB");
        row("animtext author -o a.json --text a --pos 5", 2, "two whole numbers like 16,0");
        row("animtext author -o a.json --text a --neon 3 --neon-picture x", 2, "go together");
        row("animtext author -o a.json --text a --dazzle blue", 2,
            "--dazzle takes plain, linear, radial or conical, not \"blue\"");
        row("animtext author -o a.json --text a --picture x", 2, "add --dazzle");
        row("animtext author -o a.json --text a --dazzle --picture none", 2, "no file none");
        // Findings are what was asked for, and go where that goes.
        const auto findings = [&](const QByteArray& speed, const char* line, int status,
                                  const char* out) {
            const QByteArray key = "\"AnimationSpeed\": ";
            row("sed -i 's/" + key + "9/" + key + speed + "/' one.json; " + line, status, out);
        };
        findings("9, \"Stroke\": 1", "animtext validate one.json --strict", 1,
                 "0 errors, 1 warning");
        findings("12", "animtext validate --strict one.json", 2, "error speed-range at $.pages[0]");
        findings("12", "animtext validate one.json --strict --json", 2, "\"errors\": 1");
        findings(",", "animtext validate one.json --json", 2, "\"code\": \"scene-unreadable\"");
        findings("12", "animtext validate - one.json <one.json", 2, "-: 1 error, 0 warnings\n");
        findings("9", "animtext validate none - --strict <one.json", 2, "it.\n\n-: no mistakes");
        findings("12", "animtext validate one.json two.json --json", 2, "[\n    {\n");
    }

    /** One line that says what is wrong, and nothing left behind. */
    void refuses()
    {
        QFETCH(QString, expected);
        const QStringList before = files->Everything();
        const QByteArray bad = files->Read("bad.json");
        const Outcome outcome = files->Shell(QTest::currentDataTag());
        QTEST(outcome.status, "status");
        QVERIFY2((outcome.out + outcome.errors).contains(expected.toUtf8()),
                 outcome.out + outcome.errors);
        QVERIFY2(outcome.out.isEmpty() != outcome.errors.isEmpty(), outcome.out);
        if (!outcome.errors.isEmpty())
            QVERIFY(outcome.errors.startsWith("animtext: ") && outcome.errors.count('\n') == 1);
        QCOMPARE(files->Everything(), before);
        QCOMPARE(files->Read("bad.json"), bad);
    }

    /** Every shell completes every option that the help has. */
    void completesWhatTheHelpTells()
    {
        const QByteArray bash = files->Shell("animtext completion bash").out;
        const QByteArray zsh = files->Shell("animtext completion zsh").out;
        const QByteArray fish = files->Shell("animtext completion fish").out;
        int options = 0;
        for (const char* command : {"author", "render", "sheet", "trace", "duration", "validate"}) {
            const Outcome help = files->Shell(QString("animtext help %1").arg(command));
            QCOMPARE(files->Shell(QString("animtext %1 --help").arg(command)).out, help.out);
            for (const QByteArray& line : help.out.split('\n')) {
                QVERIFY2(line.size() <= 80, line);
                const QByteArray name = line.mid(8).split(' ').first();
                if (line.indexOf("--") != 6)
                    continue;
                ++options;
                QVERIFY2(bash.contains(' ' + QByteArray("--") + name) ||
                             bash.contains("'--" + name),
                         name);
                QVERIFY2(zsh.contains("'--" + name), name);
                QVERIFY2(fish.contains("-l " + name + ' '), name);
            }
        }
        QVERIFY(options > 50);
    }

    void endsAtSignals_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("status");
        QTest::newRow("Ctrl+C") << SIGINT << 130;
        QTest::newRow("terminated") << SIGTERM << 143;
    }

    void endsAtSignals()
    {
        QFETCH(int, signal);
        QProcess program;
        program.start(ANIMTEXT_PROGRAMS "/animtext",
                      {"trace", files->Path("one.json"), "-n1000000000"});
        QVERIFY(program.waitForReadyRead());
        ::kill(pid_t(program.processId()), signal);
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QTEST(program.exitCode(), "status");
    }

    void authors()
    {
        files->Write("p.png", "");
        QCOMPARE(files
                     ->Shell("animtext author -o s.json --text Grüße --effect wavesEFFECT "
                             "--speed 7 --hold 1.3s --plays 2 --area 300x40 --pos 50,6 --no-alpha "
                             "--display 400x50 --neon 4 --dazzle conical --picture p.png "
                             "--color '#010203' --bold --underline --hollow --size 32")
                     .errors,
                 QByteArray());
        const Scene scene = Read();
        const SceneNode& node = *scene.Nodes().first();
        QCOMPARE(scene.display, QSize(400, 50));
        QVERIFY(!scene.alphaBlend);
        QCOMPARE(node.size, QSize(300, 40));
        QCOMPARE(node.pos, QPoint(50, 6));
        QCOMPARE(node.hold, 13);
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

    /** A number is what the same time is. */
    void holds()
    {
        for (const char* hold : {"--hold 20", "--hold 2s", "--hold=2000ms", ""}) {
            files->Shell(QString("animtext author -o s.json --text a %1").arg(hold));
            QCOMPARE(Read().Nodes().first()->hold, 20);
        }
    }

    void notesOnTheText()
    {
        QByteArray errors = files
                                ->Shell("echo $'a\\nb\\uE123' | animtext author -o s.json "
                                        "--text-file - --scroll UP --speed 9 --dazzle")
                                .errors;
        QVERIFY(errors.contains("a line break became a space"));
        QVERIFY(errors.contains("character 4, \"\xee\x84\xa3\" (U+E123), leaves a gap"));
        const Scene scene = Read();
        const QMap<QString, QVariant> attributes = scene.Nodes().first()->attributes;
        QCOMPARE(attributes["EffectType"], QVariant(1));
        QCOMPARE(attributes["ContinueStyle"], QVariant(2));
        QCOMPARE(attributes["ContinueSpeed"], QVariant(9));
        QCOMPARE(attributes["CheckDazzle"], QVariant(1));

        const QSize size = scene.Nodes().first()->size;
        QVERIFY(size.height() > size.width()); // a column, shown several characters at a time

        errors =
            files->Shell("animtext author -o s.json --text abc --size 100 --area 50x60").errors;
        QVERIFY(errors.contains("character-wide") && errors.contains("letters are cut off"));
        files->Shell("animtext author -o s.json --text abc --area 60x40"); // as large as fits
        const auto rows = Read().Nodes().first()->lists["TextHeight"];
        const int height = rows.first()["text_height"].toInt();
        QVERIFY(height > 36 && height <= 40);
    }

    void appends()
    {
        QCOMPARE(
            files
                ->Shell(
                    "animtext author -o s.json --text one --append &&"
                    "animtext author -o s.json --text two --append --pos 0,100 --display 512x200 &&"
                    "animtext validate s.json --strict")
                .status,
            0);
        const Scene scene = Read();
        QCOMPARE(scene.Nodes().size(), 2);
        QCOMPARE(scene.display, QSize(512, 200));
    }

    /** The first picture is empty: 64 × 32 pixels of four zero bytes. */
    void tracesLinesAsFixed()
    {
        files->Save(files->Of({files->Node({}), files->Node({" "})}));
        const QByteArray empty =
            QCryptographicHash::hash(QByteArray(64 * 32 * 4, '\0'), QCryptographicHash::Sha1);
        QCOMPARE(files->Shell("animtext trace scene.json --ticks 0").out,
                 "{\"tick\":0,\"ms\":0,\"node\":0,\"swap\":true,\"layer\":0,\"w\":64,\"h\":32,"
                 "\"sha1\":\"" +
                     empty.toHex() +
                     "\",\"state\":1}\n"
                     "{\"tick\":0,\"ms\":0,\"node\":1,\"swap\":false,\"layer\":0,\"w\":0,\"h\":0,"
                     "\"sha1\":\"\",\"state\":2}\n");
        const QByteArray later = files->Shell("animtext trace scene.json --ticks 3").out;
        QCOMPARE(later.count('\n'), 2 * 4);
        QVERIFY2(later.contains("{\"tick\":3,\"ms\":198,\"node\":0"), later.constData());

        QStringList kinds;
        for (const QByteArray& line :
             files->Shell("animtext trace one.json --ticks 1 --calls").out.trimmed().split('\n'))
            kinds << QJsonDocument::fromJson(line).object().value("call").toString("tick");
        QCOMPARE(kinds.join(' '),
                 QString("CreatePictureSession AddPictureSession GetPicImageLayerPtr "
                         "SwapPicImageLayerPtr SetPicLayerBlend tick SwapPicImageLayerPtr tick"));
    }

    /** Metrics are shorter than the text, and what neon and dazzle paint is in the calls. */
    void tracesTheSameAgain_data()
    {
        QTest::addColumn<int>("effectType");
        QTest::addColumn<int>("motion");
        for (int effect = 0; effect <= 30; ++effect) // the last is unknown
            QTest::addRow("effect %d", effect) << 0 << effect;
        QTest::newRow("sideways") << 1 << 0;
        QTest::newRow("upwards") << 1 << 2;
        QTest::newRow("unknown mode") << 7 << 0;
    }

    void tracesTheSameAgain()
    {
        QFETCH(int, effectType);
        QFETCH(int, motion);
        SceneNode node = files->Node({"abcdefgh", motion, 7, 1, 2}, {{"EffectType", effectType},
                                                                     {"ContinueStyle", motion},
                                                                     {"CheckNeonBg", 1},
                                                                     {"CheckDazzle", 1}});
        node.lists["TextWidth"] = node.lists["TextWidth"].mid(0, 3);
        node.files.remove("DescentVector");
        Scene scene = files->Of({node});
        scene.alphaBlend = motion % 2 == 0;
        files->Save(scene);
        const Outcome first = files->Shell("animtext trace scene.json --ticks 60 --calls");
        QCOMPARE(first.status, 0);
        QVERIFY(first.out.count('\n') > 61);
        QCOMPARE(files->Shell("animtext trace scene.json --ticks 60 --calls").out, first.out);
    }

    /** Three characters at a picture every tick, and one hold of 300 ms. */
    void tellsDurations()
    {
        files->Save(files->Of({files->Node({"abc", 4, 9, 3})}));
        QCOMPARE(files->Shell("animtext duration scene.json --json --simulate").out,
                 QByteArray("{\"duration\":498,\"simulated\":{\"animationTicks\":4,\"holdTicks\":5,"
                            "\"finishedMs\":528}}\n"));
        const QList<QByteArray> lines =
            files->Shell("animtext duration scene.json --table --json").out.trimmed().split('\n');
        QCOMPARE(lines.size(), 30 * 4);
        const QJsonObject swing = QJsonDocument::fromJson(lines.at(6 * 4 + 2)).object();
        QCOMPARE(swing.value("name").toString(), QString("SwingEffect"));
        QCOMPARE(swing.value("duration").toInt(), 360 * 66 + 300);
        QCOMPARE(swing.value("simulated").toObject().value("animationTicks").toInt(), 361);
    }

private:
    Scene Read() const
    {
        Scene scene;
        QString error;
        if (!ReadScene(files->Path("s.json"), &scene, &error))
            qFatal("%s", qPrintable(error));
        return scene;
    }

    QScopedPointer<TestScenes> files;
};

QTEST_GUILESS_MAIN(TestCommandLine)

#include "tst_commandline.moc"
