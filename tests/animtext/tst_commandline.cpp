// The program as its user meets it: lines of shell, what they print and how they end.
#include "testscene.h"

#include <QCryptographicHash>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

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
        files->Save(files->Of({files->Node({"abc", 4, 9, 3})}), "held.json");
        files->Save(files->Of({files->Node({"abc", 4, 9, 0, 1000000})}), "endless.json");
        files->Write("bad.json",
                     R"({"scene": 1, "display": {"width": 8, "height": 8}, "pages": 1})");
    }

    void lines_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("expected");
        const auto refused = [](const QByteArray& line, int status, const char* expected) {
            QTest::newRow(line) << status << QByteArray(expected);
        };
        const auto row = [&](const QByteArray& line, const char* expected) {
            refused(line, 0, expected);
        };
        const auto author = [&](const QByteArray& words, const char* expected) {
            refused("animtext author -o a.json --text a " + words, 2, expected);
        };
        const auto render = [&](const QByteArray& words, const char* expected) {
            refused("animtext render one.json " + words, 2, expected);
        };
        const auto completes = [&](const QByteArray& words, const char* expected) {
            row("animtext completion bash >a; . ./a; COMP_WORDS=(" + words +
                    "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _animtext; echo ${COMPREPLY[@]}",
                expected);
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
        completes("animtext author --dazzle r", "radial\n");
        completes("animtext s", "sheet soak\n");
        completes("animtext trace --t", "--ticks\n");
        completes("animtext trace one", "one.json\n");
        // What an author gets.
        row("animtext author -o a.json --text a && grep hold a.json", "\"hold\": 20,");
        row("animtext author -o a.json --text a --hold 13 && grep hold a.json", "\"hold\": 13,");
        row("animtext author -o a.json --text a --hold=1.3s && grep hold a.json", "\"hold\": 13,");
        row("animtext author -o a.json --text a --hold 900ms && grep hold a.json", "\"hold\": 9,");
        row("animtext author -o a.json --text one --append >a && animtext author -o a.json --text "
            "two --append --pos 0,100 --display 512x200 >a && animtext validate a.json --strict",
            "no mistakes found");
        row("echo $'a\\nb\\uE123' | animtext author -o a.json --text-file - 2>&1",
            "animtext: a line break became a space\nanimtext: character 4, \"\xee\x84\xa3\" "
            "(U+E123), leaves a gap");
        row("animtext author -o a.json --text a --scroll UP --speed 9 --dazzle --size 9 >a;"
            "grep -E 'CheckDaz|Continue|EffectType' a.json | tr -d ' \\n'",
            "\"CheckDazzle\":1,\"ContinueSpeed\":9,\"ContinueStyle\":2,\"EffectType\":1,");
        row("animtext author -o a.json --text abc --size 100 --area 50x60 2>&1", "character-wide");
        row("animtext author -o a.json --text abc --area 60x40",
            " x 39 pixels"); // as large as fits
        row("touch p.png; animtext author -o a.json --text Grüße --effect wavesEFFECT --speed 7 "
            "--hold 1.3s --plays 2 --area 300x40 --pos 50,6 --no-alpha --display 400x50 --neon 4 "
            "--dazzle conical --picture p.png --color '#010203' --bold --underline --hollow "
            "--size 32 >a; tr -d ' \n' <a.json",
            R"({"scene":1,"display":{"width":400,"height":50},"alphaBlend":false,"pages":[{"areas":)"
            R"([{"nodes":[{"type":"LW_animationText_Plugin","pos":[50,6],"size":[300,40],)"
            R"("hold":13,"neonEffect":4,"attributes":{"AnimationEffect":5,"AnimationSpeed":7,)"
            R"("CheckColorGradient":1,"CheckDazzle":1,"CheckNeonBg":1,"CheckPictureFills":1,)"
            R"("ColorGradient":2,"EffectType":0,"Hollow":1,"PlayTimes":2,"Text":"Grüße"},)"
            R"("lists":{"TextAttribute":[{"fontName":"DejaVuSans","fontSize":"24","bold":"1",)"
            R"("italic":"0","underline":"1","Color":"66051"})");
        // Three characters at a picture every tick, and one hold of 300 ms.
        row("animtext duration held.json --json --simulate",
            "{\"duration\":498,\"simulated\":{\"animationTicks\":4,\"holdTicks\":5,"
            "\"finishedMs\":528}}\n");
        row("animtext duration held.json --table --json | sed '27p;$='",
            "\"SwingEffect\",\"speed\":5,\"duration\":24060,\"simulated\":{\"animationTicks\":"
            "361,");
        row("animtext trace one.json --ticks 1 --calls | cut -d'\"' -f 4 | tr '\\n' ' '",
            "CreatePictureSession AddPictureSession GetPicImageLayerPtr SwapPicImageLayerPtr "
            "SetPicLayerBlend ms SwapPicImageLayerPtr ms ");
        // Of every command.
        refused("animtext", 2, "expected a command (see animtext help)");
        refused("animtext rendr one.json", 2, "did you mean render?");
        refused("animtext help trac", 2, "did you mean trace?");
        refused("animtext completion tcsh", 2, "expected bash, zsh or fish");
        refused("animtext trace", 2, "expected SCENE.json (see animtext help trace)");
        refused("animtext trace one.json two.json", 2, "\"two.json\" is one word too many");
        refused("animtext trace one.json --tiks 3", 2,
                "unknown option --tiks; did you mean --ticks?");
        refused("animtext trace one.json -ticks 3", 2,
                "unknown option -ticks; did you mean --ticks?");
        refused("animtext trace one.json -x", 2, "unknown option -x");
        refused("animtext trace one.json --ticks", 2, "--ticks takes N, which is missing");
        refused("animtext trace one.json --calls=yes", 2, "--calls takes no value");
        refused("animtext trace one.json --plugin ''", 2, "--plugin takes the name of a file");
        refused("animtext trace none.json", 2,
                "none.json: expected a scene file, found no such file");
        refused("animtext trace bad.json", 2, "bad.json: $.pages: expected a list");
        refused("animtext trace - </dev/null", 2, "-:1:1: expected valid JSON");
        refused("animtext trace one.json --plugin none.so", 1, "there is no plugin at");
        refused("animtext trace one.json --plugin one.json", 1, "cannot be loaded");
        for (const char* line :
             {"animtext --version", "animtext help", "animtext completion fish", "animtext effects",
              "animtext trace one.json", "animtext trace one.json -n 5000",
              "animtext soak one.json"
              " --hours 0",
              "animtext sheet one.json -o -", "animtext duration one.json --table",
              "animtext validate one.json"})
            refused(line + QByteArray(" >/dev/full"), 1, "standard output cannot be written");
        const QByteArray signal =
            "exec 2>/dev/null; set -m; animtext trace one.json -n 1000000000 >a &"
            "until [ -s a ]; do :; done; kill -SIG $!; wait $!; s=$?; rm a;"
            "(exit $s)";
        refused(QByteArray(signal).replace("SIG", "INT"), 130, "");
        refused(QByteArray(signal).replace("SIG", "TERM"), 143, "");
        // Values and their ranges.
        refused("animtext trace one.json --ticks many", 2, "from 0 to 1000000000, not \"many\"");
        refused("animtext trace one.json --ticks -1", 2, "a whole number from 0");
        refused("animtext trace one.json --ticks 1000000001", 2, "a whole number from 0");
        refused("animtext trace one.json --seed -1", 2, "from 0 to 2147483647");
        refused("animtext sheet one.json -o a.png --columns 0", 2, "from 1 to 50");
        refused("animtext sheet one.json -o a.png --columns 51", 2, "from 1 to 50");
        refused("animtext soak --hours 8785", 2, "or a number from 0 to 8784");
        refused("animtext soak --hours 8784.1h", 2, "or a number from 0 to 8784");
        refused("animtext soak --growth nan", 2, "a number from 0 to 1000000");
        refused("animtext soak --growth -1", 2, "a number from 0 to 1000000");
        render("-o a.gif --scale 17", "from 1 to 16");
        render("-o a.gif --seconds -1", "--seconds takes a time such as");
        render("-o a.gif --seconds 2d", "--seconds takes a time such as");
        render("-o a.gif --seconds 86401", "from 0.001 to 86400");
        render("-o a.gif --seconds 0", "from 0.001 to 86400");
        render("-o a.gif --frames 2-99", "the pictures 0 to 3");
        render("-o a.gif --frames 2-1", "the first and the last");
        render("-o a.gif --frames 3-", "one such as 5");
        render("-o a.gif --at 4t", "it has no picture 4");
        render("-o a.gif --at 1t --frames 1", "exclude each other");
        render("-o a.png", "say which with --at or --frames");
        render("-o a.png --frames 0-1", "say which with --at");
        render("-o a.mp4 --transparent", "cannot be transparent");
        render("-o a.gif --lossless", ".gif lose colors");
        render("-o a.webm --lossless --transparent", "transparent films");
        render("-o a.gif --transparent --background red", "exclude each");
        render("./one.json -o a", "would both become one.gif");
        render("-o a.gif --background mud", "a color or #rrggbb");
        // Of single commands.
        refused("animtext render one.json", 2, "expected -o OUT");
        render("-o a.avi", "expected a name that ends with .gif, .apng");
        refused("animtext render one.json -o none/a.gif", 1, "none/a.gif cannot be written");
        refused("animtext render one.json -o none/a/", 1, "no folder can be made in");
        refused("animtext render one.json -o two.json/", 1, "is a file");
        refused("animtext render bad.json -o a.gif", 2, "bad.json: $.pages");
        refused("animtext render endless.json -o a.gif", 2, "say how much of it to play");
        refused("animtext sheet one.json bad.json -o a.png", 2, "bad.json: $.pages");
        refused("animtext sheet one.json -o none/a.png", 1, "cannot be written");
        refused("animtext sheet one.json -o a.gif", 2, "ends with .png");
        refused("animtext duration bad.json", 2, "bad.json: $.pages");
        refused("animtext author --text a", 2, "expected -o SCENE.json");
        refused("animtext author -o a.json", 2, "expected --text");
        author("--text-file b", "exclude each other");
        refused("animtext author -o a.json --text-file - <<<$'\\xff\\xfe'", 2, "expected UTF-8");
        refused("animtext author -o a.json --text $'\\xff'", 2, "--text takes UTF-8");
        refused("animtext author -o $'\\xff.json' --text a", 2,
                "names its data files after itself");
        refused("animtext author -o a.json --text $'\\a'", 2, "U+0007");
        refused("animtext author -o a.txt --text a", 2, "a name that ends in .json");
        refused("animtext author -o bad.json --text a", 2, "$.pages: expected a list, found 1");
        refused("animtext author -o bad.json --text a --append", 2,
                "bad.json: $.pages: expected a list");
        author("--font DejaVuSans", "did you mean DejaVu Sans?");
        author("--effect WavesEfect", "mean WavesEffect?");
        author("--effect shake", "did you mean EffectShake?");
        author("--effect 30", "from 0 to 29 or a name out of animtext effects, not \"30\"");
        author("--scroll lft", "did you mean left?");
        author("--scroll left --effect 4", "exclude each other");
        author("--color '#ffa00'", "a color or #rrggbb");
        author("--color orrange", "did you mean orange?");
        author("--size 3", "from 4 to 2000");
        author("--speed 10", "from 0 to 9");
        author("--plays 0", "from 1 to 1000000");
        author("--hold -1", "or a number from 0 to 1000000");
        author("--hold 250ms", "whole tenths of a second");
        author("--area 100", "a size like 512x64");
        author("--area 100x0", "its sides from 1 to 16384");
        author("--display 1x16385", "its sides from 1 to 16384");
        author("--area 16384x16384", "MiB");
        refused("animtext author -o a.json --text WWWW --scroll left --size 2000 --area 1x16384", 2,
                "MiB");
        author("--pos 5", "two whole numbers like 16,0");
        author("--neon 3 --neon-picture x", "go together");
        author("--dazzle blue", "--dazzle takes plain, linear, radial or conical, not \"blue\"");
        author("--picture x", "add --dazzle");
        author("--dazzle --picture none", "no file none");
        // Findings are what was asked for, and go where that goes.
        const auto findings = [&](const QByteArray& speed, const char* line, int status,
                                  const char* out) {
            const QByteArray key = "\"AnimationSpeed\": ";
            refused("sed -i 's/" + key + "9/" + key + speed + "/' one.json; " + line, status, out);
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

    /** A refusal is one line that says what is wrong, and leaves nothing behind. */
    void lines()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, expected);
        const QStringList before = files->Everything();
        const QByteArray bad = files->Read("bad.json");
        const Outcome outcome = files->Shell(QTest::currentDataTag());
        QVERIFY2((outcome.out + outcome.errors).contains(expected), outcome.out + outcome.errors);
        QCOMPARE(outcome.status, status);
        QVERIFY2(outcome.out.isEmpty() || outcome.errors.isEmpty(), outcome.errors);
        if (!outcome.errors.isEmpty())
            QVERIFY(status && outcome.errors.startsWith("animtext: ") &&
                    outcome.errors.count('\n') == 1);
        QCOMPARE(files->Read("bad.json"), bad);
        if (status)
            QCOMPARE(files->Everything(), before);
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

private:
    QScopedPointer<TestScenes> files;
};

QTEST_GUILESS_MAIN(TestCommandLine)

#include "tst_commandline.moc"
