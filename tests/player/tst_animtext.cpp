#include "testscene.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtEndian>
#include <QtTest>

using namespace AnimText;

namespace {

/** What a program made of its words. */
struct Outcome
{
    int status = -1;
    QByteArray out;
    QByteArray errors;
};

Outcome Run(const QString& program, const QStringList& words, const QString& programs = QString())
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!programs.isEmpty())
        environment.insert("PATH", programs);
    process.setProcessEnvironment(environment);
    process.start(program, words);
    process.closeWriteChannel();
    process.waitForFinished(-1);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

Outcome Animtext(const QStringList& words, const QString& programs = QString())
{
    return Run(QCoreApplication::applicationDirPath() + "/animtext", words, programs);
}

/** The milliseconds of a film. Animated WebP is unknown to ffprobe. */
double Duration(const QString& path)
{
    double milliseconds = 0;
    if (path.endsWith(".webp")) {
        QFile file(path);
        const QByteArray data = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        for (int at = 12; at + 8 <= data.size();) {
            const quint32 size = qFromLittleEndian<quint32>(data.constData() + at + 4);
            if (data.mid(at, 4) == "ANMF")
                milliseconds += qFromLittleEndian<quint32>(data.constData() + at + 20) & 0xFFFFFF;
            at += 8 + int(size + size % 2);
        }
        return milliseconds;
    }
    const QString words = "-v error -select_streams v -show_entries packet=pts_time,duration_time "
                          "-of csv=p=0 " +
                          path;
    for (const QByteArray& line : Run("ffprobe", words.split(' ')).out.split('\n')) {
        const QList<QByteArray> times = line.split(',') << "0";
        milliseconds = qMax(milliseconds, (times[0].toDouble() + times[1].toDouble()) * 1000);
    }
    return milliseconds;
}

} // namespace

class TestAnimtext : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        onePage = files.Save(files.Of({files.Node({})}), "one.json");
        twoPages = files.Save(files.Of({files.Node({"abcdef", 9, 9, 3})}), "two.json");
        files.Save(files.Of({files.Node({"abc", 4, 9, 0, 1000000})}), "endless.json");
        files.Write("bad.json",
                    R"({"scene": 1, "display": {"width": 8, "height": 8}, "pages": 1})");
        files.Write("old.gif", "the old film");
    }

    /** The first picture is empty: 64 × 32 pixels of four zero bytes. */
    void tracesLinesAsFixed()
    {
        const QString path = files.Save(files.Of({files.Node({}), files.Node({" "})}));
        const QByteArray empty =
            QCryptographicHash::hash(QByteArray(64 * 32 * 4, '\0'), QCryptographicHash::Sha1);
        QCOMPARE(Animtext({"trace", path, "--ticks", "0"}).out,
                 "{\"tick\":0,\"ms\":0,\"node\":0,\"swap\":true,\"layer\":0,\"w\":64,\"h\":32,"
                 "\"sha1\":\"" +
                     empty.toHex() +
                     "\",\"state\":1}\n"
                     "{\"tick\":0,\"ms\":0,\"node\":1,\"swap\":false,\"layer\":0,\"w\":0,\"h\":0,"
                     "\"sha1\":\"\",\"state\":2}\n");
        const QByteArray later = Animtext({"trace", path, "--ticks", "3"}).out;
        QCOMPARE(later.count('\n'), 2 * 4);
        QVERIFY2(later.contains("{\"tick\":3,\"ms\":198,\"node\":0"), later.constData());

        QStringList kinds;
        for (const QByteArray& line :
             Animtext({"trace", onePage, "--ticks", "1", "--calls"}).out.trimmed().split('\n'))
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
        SceneNode node = files.Node({"abcdefgh", motion, 7, 1, 2}, {{"EffectType", effectType},
                                                                    {"ContinueStyle", motion},
                                                                    {"CheckNeonBg", 1},
                                                                    {"CheckDazzle", 1}});
        node.lists["TextWidth"] = node.lists["TextWidth"].mid(0, 3);
        node.files.remove("DescentVector");
        Scene scene = files.Of({node});
        scene.alphaBlend = motion % 2 == 0;
        const QStringList words{"trace", files.Save(scene), "--ticks", "60", "--calls"};
        const Outcome first = Animtext(words);
        QCOMPARE(first.status, 0);
        QVERIFY(first.out.count('\n') > 61);
        QCOMPARE(Animtext(words).out, first.out);
    }

    void rendersFilms_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<int>("frames");
        // Effect 9 takes 46 / 5 pictures a character, rounded up; 300 ms of hold are five ticks.
        const int all = 6 * 10 + 2 * 5 + 5;
        for (const char* kind : {"gif", "apng", "webp", "mp4", "webm"}) {
            QTest::addRow("all.%s", kind) << "--background #102030" << all;
            QTest::addRow("some.%s", kind) << "--scale 3 --frames 7-20" << 14;
            QTest::addRow("second.%s", kind) << "--seconds 1" << 15;
        }
    }

    void rendersFilms()
    {
        QFETCH(QString, options);
        QFETCH(int, frames);
        const QString name = QTest::currentDataTag();
        const QStringList before = Listing();
        const Outcome outcome =
            Animtext(QStringList{"render", twoPages, "-o", files.Path(name)} + options.split(' '));
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        const double milliseconds = Duration(files.Path(name));
        QVERIFY2(qAbs(milliseconds - frames * 66) <= 66, QByteArray::number(milliseconds));
        QVERIFY(QFile::remove(files.Path(name)));
        QCOMPARE(Listing(), before);
    }

    /** An APNG loses nothing, so it has to be what the folder has. */
    void rendersThePicturesThemselves()
    {
        const QString film = files.Path("same.apng");
        const QString folder = files.Path("same/");
        QCOMPARE(Animtext({"render", twoPages, "-o", film}).status, 0);
        QCOMPARE(Animtext({"render", twoPages, "-o", folder}).status, 0);
        const QString words = "-v error -i " + film + " -f rawvideo -pix_fmt bgra pipe:1";
        const QByteArray decoded = Run("ffmpeg", words.split(' ')).out;
        const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
        QCOMPARE(names.size(), 75);
        QByteArray pictures;
        for (const QString& name : names) {
            const QImage picture = QImage(folder + name).convertToFormat(QImage::Format_ARGB32);
            QCOMPARE(picture.size(), QSize(64, 32));
            pictures.append(reinterpret_cast<const char*>(picture.constBits()), 64 * 32 * 4);
        }
        QVERIFY(pictures == decoded);
        QVERIFY(pictures.count('\0') < pictures.size());

        // A folder of frames is replaced, but not one that holds something else.
        QCOMPARE(Animtext({"render", onePage, "-o", folder}).status, 0);
        QCOMPARE(QDir(folder).count(), 2 + 4u);
        files.Write("same/notes.txt", "mine");
        QVERIFY(
            Animtext({"render", onePage, "-o", folder}).errors.contains("also holds notes.txt"));
        QCOMPARE(QDir(folder).count(), 2 + 5u);
    }

    /** "DIR" stands for the folder with the scenes. */
    void refuses_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char* words, int status, const char* expected) {
            QTest::newRow(words) << status << QByteArray(expected);
        };
        row("rendr DIR/one.json", 2, "did you mean render?");
        row("trace", 2, "expected SCENE.json");
        row("trace DIR/one.json DIR/one.json", 2, "one word too many");
        row("trace DIR/one.json --ticks many", 2, "--ticks takes a whole number");
        row("trace DIR/none.json", 2, "none.json: there is no such file");
        row("trace DIR/bad.json", 2, "bad.json: $.pages: expected a list");
        row("trace DIR/one.json --plugin DIR/none.so", 1, "there is no plugin at");
        row("trace DIR/one.json --plugin DIR/one.json", 1, "cannot be loaded");
        row("render DIR/one.json -o DIR/film.avi", 2, "expected a name that ends with .gif, .apng");
        row("render DIR/one.json -o DIR/none/film.gif", 1, "none/film.gif cannot be written");
        row("render DIR/one.json -o DIR/none/frames/", 1, "no folder can be made in");
        row("render DIR/one.json -o DIR/two.json/", 1, "is a file");
        row("render DIR/bad.json -o DIR/film.gif", 2, "bad.json: $.pages");
        row("render DIR/one.json -o DIR/film.gif --seconds -1", 2, "--seconds takes a number");
        row("render DIR/one.json -o DIR/film.gif --frames 2-99", 2, "the pictures 0 to 3");
        row("render DIR/one.json -o DIR/film.gif --background mud", 2, "takes a colour");
        row("render DIR/endless.json -o DIR/film.gif", 2, "say how much of it to play");
        row("sheet DIR/one.json DIR/bad.json -o DIR/sheet.png", 2, "bad.json: $.pages");
        row("sheet DIR/one.json -o DIR/none/sheet.png", 1, "cannot be written");
        row("duration DIR/bad.json", 2, "bad.json: $.pages");
    }

    void refuses()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, expected);
        const QStringList before = Listing();
        const Outcome outcome =
            Animtext(QString(QTest::currentDataTag()).replace("DIR", files.Folder()).split(' '));
        QVERIFY2(outcome.errors.contains(expected), outcome.errors);
        QCOMPARE(outcome.errors.count('\n'), 1);
        QCOMPARE(outcome.out, QByteArray());
        QCOMPARE(outcome.status, status);
        QCOMPARE(Listing(), before);
    }

    void leavesNothingWhenTheEncoderFails_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char* name, const char* script, const char* expected) {
            QTest::newRow(name) << QByteArray(script) << QByteArray(expected);
        };
        row("is missing", "", "apt-get install ffmpeg");
        row("fails at once", "echo one >&2; echo two >&2; exit 3", "ffmpeg failed: two\n");
        row("fails at the end", "/bin/cat >/dev/null; echo full >&2; exit 1",
            "ffmpeg failed: full\n");
        row("is killed", "kill -9 $$", "ffmpeg failed: ");
        row("interruption while it takes pictures",
            "kill -TERM $PPID; /bin/cat >/dev/null; while :; do :; done", "interrupted\n");
        row("interruption while it ends",
            "/bin/cat >/dev/null; kill -TERM $PPID; while :; do :; done", "interrupted\n");
    }

    void leavesNothingWhenTheEncoderFails()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, expected);
        const QTemporaryDir programs;
        QFile encoder(programs.filePath("ffmpeg"));
        if (!script.isEmpty()) {
            QVERIFY(encoder.open(QIODevice::WriteOnly));
            encoder.write("#!/bin/sh\n" + script + "\n");
            encoder.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
            encoder.close();
        }
        const QStringList before = Listing();
        const Outcome outcome = Animtext(
            {"render", twoPages, "-o", files.Path("old.gif"), "--seconds", "15", "--scale", "4"},
            programs.path());
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(expected), outcome.errors);
        QCOMPARE(Listing(), before);
        QFile old(files.Path("old.gif"));
        QVERIFY(old.open(QIODevice::ReadOnly));
        QCOMPARE(old.readAll(), QByteArray("the old film"));
    }

    /** Three characters at a picture every tick, and one hold of 300 ms. */
    void tellsDurations()
    {
        const QString path = files.Save(files.Of({files.Node({"abc", 4, 9, 3})}));
        QCOMPARE(Animtext({"duration", path, "--json", "--simulate"}).out,
                 QByteArray("{\"duration\":498,\"simulated\":{\"animationTicks\":4,\"holdTicks\":5,"
                            "\"finishedMs\":528}}\n"));
        const QList<QByteArray> lines =
            Animtext({"duration", path, "--table", "--json"}).out.trimmed().split('\n');
        QCOMPARE(lines.size(), 30 * 4);
        const QJsonObject swing = QJsonDocument::fromJson(lines.at(6 * 4 + 2)).object();
        QCOMPARE(swing.value("name").toString(), QString("SwingEffect"));
        QCOMPARE(swing.value("duration").toInt(), 360 * 66 + 300);
        QCOMPARE(swing.value("simulated").toObject().value("animationTicks").toInt(), 361);
    }

    void drawsSheetsAndHelps()
    {
        QCOMPARE(Animtext({"sheet", onePage, "-o", files.Path("one.png")}).status, 0);
        QCOMPARE(Animtext({"sheet", onePage, twoPages, "-o", files.Path("two.png")}).status, 0);
        QVERIFY(QImage(files.Path("two.png")).height() > QImage(files.Path("one.png")).height());
        QCOMPARE(Animtext({"effects"}).out.count('\n'), 1 + 30 + 1 + 1 + 4);
        for (const char* command : {"author", "render", "sheet", "trace", "duration", "validate"})
            QVERIFY2(Animtext({command, "--help"}).out.startsWith("Usage: animtext "), command);
    }

private:
    QStringList Listing() const
    {
        return QDir(files.Folder()).entryList(QDir::AllEntries | QDir::Hidden);
    }

    TestScenes files;
    QString onePage;  // three characters: 4 pictures at speed 9
    QString twoPages; // six of them in an area for four, with holds
};

QTEST_GUILESS_MAIN(TestAnimtext)

#include "tst_animtext.moc"
