// Films that animtext render writes, and what is left when it cannot.
#include "testscene.h"

#include <QCryptographicHash>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>
#include <QtTest>

using namespace AnimText;

class TestFilms : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        files.reset(new TestScenes);
        files->Save(files->Of({files->Node({})}), "one.json");                  // 4 pictures
        files->Save(files->Of({files->Node({"abcdef", 9, 9, 3})}), "two.json"); // of two pages
    }

    void rendersFilms_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<int>("frames");
        // Effect 9 takes 46 / 5 pictures a character, rounded up; 300 ms of hold are five ticks.
        const int all = 6 * 10 + 2 * 5 + 5;
        for (const char* kind : {"gif", "apng", "webp", "mp4", "webm"}) {
            QTest::addRow("all.%s", kind) << "--background '#102030'" << all;
            QTest::addRow("some.%s", kind) << "--scale 3 --frames 7-20" << 14;
            QTest::addRow("one.%s", kind) << "--at 1s --transparent" << 1;
        }
        QTest::addRow("long.gif") << "--seconds 20 --scale 6" << 303; // more than is held at once
    }

    void rendersFilms()
    {
        QFETCH(QString, options);
        QFETCH(int, frames);
        const QString name = QTest::currentDataTag();
        if (name == "one.mp4")
            options.remove("--transparent");
        const QStringList before = files->Everything();
        const Outcome outcome = files->Shell("animtext render two.json -o " + name + " " + options);
        QCOMPARE(outcome.errors.contains("--lossless keeps every pixel"),
                 name.endsWith("mp4") || name.endsWith("webm"));
        QCOMPARE(outcome.errors.count('\n'), outcome.errors.isEmpty() ? 0 : 1);
        QCOMPARE(outcome.status, 0);
        const double milliseconds = Duration(name);
        QVERIFY2(frames == 1 || qAbs(milliseconds - frames * 66) <= 20,
                 QByteArray::number(milliseconds));
        QVERIFY(QFile::remove(files->Path(name)));
        QCOMPARE(files->Everything(), before);
    }

    void rendersThePicturesThemselves_data()
    {
        QTest::addColumn<QString>("options");
        QTest::newRow("clear.apng") << "--transparent";
        QTest::newRow("same.apng") << "";
        QTest::newRow("same.mp4") << "--lossless";
        QTest::newRow("same.webm") << "--lossless";
        QTest::newRow("motley.apng") << ""; // of more colours than a table of a PNG holds
    }

    /** What loses nothing has to be what the folder has; and that, unless black is laid under it,
     * what was traced. */
    void rendersThePicturesThemselves()
    {
        QFETCH(QString, options);
        const QString film = QTest::currentDataTag();
        if (film == "motley.apng")
            files->Save(files->Of({files->Node({"abcdef", 9, 9, 3}, {{"CheckDazzle", 1},
                                                                     {"CheckColorGradient", 1},
                                                                     {"ColorGradient", 2}})}),
                        "two.json");
        const QString render = "animtext render two.json --frames 5-70 " + options + " -o ";
        QCOMPARE(files->Shell(render + "same/ && " + render + film).errors, QByteArray());
        const QByteArray decoded =
            files->Shell("ffmpeg -v error -i " + film + " -f rawvideo -pix_fmt bgra pipe:1").out;
        const auto lines = files->Shell("animtext trace two.json -n 64").out.split('\n');
        const QStringList names = QDir(files->Path("same")).entryList(QDir::Files, QDir::Name);
        QCOMPARE(names.size(), 66);
        QByteArray pictures;
        QSet<QString> traced;
        for (int i = 5; i <= 70; ++i) {
            const QString name = QString("same/frame-%1.png").arg(i, 4, 10, QChar('0'));
            const QImage picture = QImage(files->Path(name)).convertToFormat(QImage::Format_ARGB32);
            QCOMPARE(picture.size(), QSize(64, 32));
            const QByteArray rows(reinterpret_cast<const char*>(picture.constBits()), 64 * 32 * 4);
            pictures += rows;
            if (film != "clear.apng") {
                QCOMPARE(qAlpha(picture.pixel(0, 0)), 255);
                QCOMPARE(picture.pixel(0, 0) == qRgb(0, 0, 0), film != "motley.apng");
            } else if (i <= 64) {
                traced.insert(QJsonDocument::fromJson(lines.at(i)).object()["sha1"].toString());
                QCOMPARE(
                    QJsonDocument::fromJson(lines.at(i)).object()["sha1"].toString().toLatin1(),
                    QCryptographicHash::hash(rows, QCryptographicHash::Sha1).toHex());
            }
        }
        QVERIFY(pictures == decoded);
        QVERIFY(pictures.count('\0') < pictures.size());
        QVERIFY(traced.size() > 30 || film != "clear.apng");
    }

    void replacesFoldersOfFramesOnly()
    {
        files->Shell("animtext render two.json -o same/");
        QCOMPARE(files->Shell("animtext render one.json -o same/; ls -A same; ls -A").out,
                 QByteArray("frame-0000.png\nframe-0001.png\nframe-0002.png\nframe-0003.png\n") +
                     files->Everything().join('\n').toUtf8() + '\n');
        files->Write("same/notes.txt", "mine");
        const Outcome refused = files->Shell("animtext render one.json -o same/; ls same | wc -l");
        QVERIFY2(refused.errors.contains("also holds notes.txt"), refused.errors);
        QCOMPARE(refused.out.trimmed(), QByteArray("5"));
    }

    /** One more character in each picture; 0.066 s and its double are a hair beside their tick. */
    void rendersStills()
    {
        files->Shell("animtext render one.json -o all/");
        const QImage expected(files->Path("all/frame-0002.png"));
        QVERIFY(expected != QImage(files->Path("all/frame-0001.png")));
        QVERIFY(expected != QImage(files->Path("all/frame-0003.png")));
        for (const char* moment : {"--at 0.132s", "--at 0.19", "--at 2t", "--frames 2"}) {
            QCOMPARE(
                files->Shell(QString("animtext render one.json -o still.png ") + moment).status, 0);
            QCOMPARE(QImage(files->Path("still.png")), expected);
            files->Remove("still.png");
        }
    }

    /** What validate calls an error is told in its words before anything is played. */
    void refusesWhatShowsNothing()
    {
        files->Save(files->Of({files->Node({"abc", 99})}), "unknown.json");
        for (const char* words : {"render unknown.json -o a.png --at 0t", "duration unknown.json",
                                  "sheet unknown.json -o a.png"}) {
            const Outcome outcome = files->Shell(QString("animtext ") + words);
            QCOMPARE(outcome.status, 2);
            QVERIFY2(outcome.errors.contains("AnimationEffect: found 99"), outcome.errors);
            QVERIFY2(outcome.errors.contains("--force plays it all the same"), outcome.errors);
        }
        const Outcome forced =
            files->Shell("animtext render unknown.json -o a.png --at 0t --seconds 1 --force");
        QVERIFY2(forced.errors.contains("AnimationEffect: found 99"), forced.errors);
        QCOMPARE(forced.status, 0);
    }

    void rendersManyScenes()
    {
        const QString words = "animtext render one.json two.json -o many --as apng --seconds 1 "
                              "--jobs 2 --scale 2 --resume; ls -A many";
        QCOMPARE(files->Shell(words).out, QByteArray("one.apng\ntwo.apng\n"));
        QCOMPARE(QImage(files->Path("many/one.apng"), "png").size(), QSize(128, 64));
        // Films that are done stay; one whose data have changed since is made anew.
        files->Shell("echo done >many/one.apng; cp many/one.apng many/two.apng;"
                     "touch -d '+9 seconds' node0.descent");
        QCOMPARE(files->Shell(words).errors, QByteArray());
        QVERIFY(!QImage(files->Path("many/one.apng"), "png").isNull());
        QCOMPARE(files->Read("many/two.apng"), QByteArray("done\n"));

        files->Write("bad.json", "{}");
        const Outcome partly =
            files->Shell("animtext render bad.json one.json -o many --as png --at 1t");
        QCOMPARE(partly.status, 1);
        QVERIFY2(partly.errors.contains("bad.json: $"), partly.errors);
        QVERIFY2(partly.errors.endsWith("1 of 2 scenes were not rendered\n"), partly.errors);
        QVERIFY(!QImage(files->Path("many/one.png")).isNull());
    }

    /** The limit on a file's size shows what a full disk does, wherever it is met. */
    void tellsThatTheDiskIsFull_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QByteArray>("expected");
        for (const char* name : {"a.gif", "a.apng", "a.webp", "a.mp4", "a.webm", "a/"})
            QTest::newRow(name) << QString("render two.json --scale 8 -o full/") + name
                                << QByteArray("full/") + name;
        QTest::newRow("still") << "render two.json --scale 16 --at 20t -o full/a.png"
                               << QByteArray("full/a.png");
        QTest::newRow("spooled") << "render two.json -o full/a.gif --seconds 20 --scale 6"
                                 << QByteArray("full/a.gif");
        QTest::newRow("sheet") << "sheet two.json -o full/a.png" << QByteArray("full/a.png");
        QTest::newRow("trace") << "trace two.json >/dev/full" << QByteArray("No space left");
    }

    void tellsThatTheDiskIsFull()
    {
        QFETCH(QString, words);
        QFETCH(QByteArray, expected);
        const QString list = "; cd full; ls -A . a; cat a.* a/*";
        const QByteArray before =
            files
                ->Shell("mkdir -p full/a && cd full &&"
                        "for i in gif apng webp mp4 webm png; do echo old >a.$i; done;"
                        "echo old >a/frame-0000.png" +
                        list)
                .out;
        const Outcome outcome =
            files->Shell("trap '' XFSZ; (ulimit -f 1; exec animtext " + words + ")");
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(expected), outcome.errors);
        QCOMPARE(outcome.errors.count('\n'), 1);
        QCOMPARE(files->Shell(":" + list).out, before);
    }

    /** Killed like that it can remove nothing itself. */
    void removesWhatAKilledRunLeft()
    {
        const QStringList before = files->Everything();
        const TestFolder programs;
        QFile::setPermissions(programs.Write("ffmpeg", "#!/bin/sh\nkill -9 $PPID\n"),
                              QFile::ReadOwner | QFile::ExeOwner);
        files->Shell("PATH=" + programs.Path("") + ":$PATH animtext render two.json -o a.webm");
        QCOMPARE(files->Everything().size(), before.size() + 1);
        files->Shell("animtext render one.json --at 1t -o b.png && rm b.png");
        QCOMPARE(files->Everything(), before);
    }

    void leavesNothingWhenTheEncoderFails_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char* name, const char* script, int status,
                            const char* expected) {
            QTest::newRow(name) << QByteArray(script) << status << QByteArray(expected);
        };
        row("is missing", "", 1, "apt-get install ffmpeg");
        row("fails at once", "echo one >&2; echo two >&2; exit 3", 1, "ffmpeg failed: two\n");
        row("fails at the end", "/bin/cat >/dev/null; echo full >&2; exit 1", 1,
            "ffmpeg failed: full\n");
        row("is killed", "kill -9 $$", 1, "ffmpeg failed: ");
        row("complains and ends well", "echo full >&2; exec /usr/bin/ffmpeg \"$@\"", 1,
            "old.gif cannot be written: ffmpeg failed: full\n");
        row("writes nothing", "/bin/cat >/dev/null", 1, "ffprobe failed: ");
        row("drops pictures",
            "/usr/bin/head -c 1310720 | /usr/bin/ffmpeg \"$@\"; /bin/cat >/dev/null", 1,
            "wrote 10 pictures of 256 x 128 pixels in 0.6");
        row("interruption while it takes pictures",
            "kill -INT $PPID; /bin/cat >/dev/null; while :; do :; done", 130, "interrupted\n");
        row("interruption while it ends",
            "/bin/cat >/dev/null; kill -TERM $PPID; while :; do :; done", 143, "interrupted\n");
    }

    void leavesNothingWhenTheEncoderFails()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, expected);
        const TestFolder programs;
        if (!script.isEmpty())
            QFile::setPermissions(programs.Write("ffmpeg", "#!/bin/sh\n" + script + "\n"),
                                  QFile::ReadOwner | QFile::ExeOwner);
        files->Write("old.gif", "the old film");
        if (!script.isEmpty())
            QFile::link("/usr/bin/ffprobe", programs.Path("ffprobe"));
        const QStringList before = files->Everything();
        const Outcome outcome =
            files->Shell("PATH=" + programs.Path("") +
                         " \"" ANIMTEXT_PROGRAMS
                         "/animtext\" render two.json -o old.gif --seconds 15 --scale 4");
        QTEST(outcome.status, "status");
        QVERIFY2(outcome.errors.contains(expected), outcome.errors);
        QCOMPARE(files->Everything(), before);
        QCOMPARE(files->Read("old.gif"), QByteArray("the old film"));
    }

private:
    /** The milliseconds of a film. Animated WebP is unknown to ffprobe. */
    double Duration(const QString& name) const
    {
        double milliseconds = 0;
        if (name.endsWith(".webp")) {
            const QByteArray data = files->Read(name);
            for (int at = 12; at + 8 <= data.size();) {
                const quint32 size = qFromLittleEndian<quint32>(data.constData() + at + 4);
                if (data.mid(at, 4) == "ANMF")
                    milliseconds +=
                        qFromLittleEndian<quint32>(data.constData() + at + 20) & 0xFFFFFF;
                at += 8 + int(size + size % 2);
            }
            return milliseconds;
        }
        const QString words = "ffprobe -v error -select_streams v -of csv=p=0 "
                              "-show_entries packet=pts_time,duration_time ";
        for (const QByteArray& line : files->Shell(words + name).out.split('\n')) {
            const QList<QByteArray> times = line.split(',') << "0";
            milliseconds = qMax(milliseconds, (times[0].toDouble() + times[1].toDouble()) * 1000);
        }
        return milliseconds;
    }

    QScopedPointer<TestScenes> files;
};

QTEST_GUILESS_MAIN(TestFilms)

#include "tst_films.moc"
