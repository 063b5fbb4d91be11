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
            QTest::addRow("second.%s", kind) << "--seconds 1s" << 15;
        }
    }

    void rendersFilms()
    {
        QFETCH(QString, options);
        QFETCH(int, frames);
        const QString name = QTest::currentDataTag();
        const QStringList before = files->Everything();
        const Outcome outcome = files->Shell("animtext render two.json -o " + name + " " + options);
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        const double milliseconds = Duration(name);
        QVERIFY2(qAbs(milliseconds - frames * 66) <= 66, QByteArray::number(milliseconds));
        QVERIFY(QFile::remove(files->Path(name)));
        QCOMPARE(files->Everything(), before);
    }

    /** An APNG loses nothing, so it has to be what the folder has; and that is what was traced. */
    void rendersThePicturesThemselves()
    {
        QCOMPARE(files
                     ->Shell("animtext render two.json -o same/ &&"
                             "animtext render two.json -o same.apng")
                     .status,
                 0);
        const QByteArray decoded =
            files->Shell("ffmpeg -v error -i same.apng -f rawvideo -pix_fmt bgra pipe:1").out;
        const auto lines = files->Shell("animtext trace two.json -n 64").out.split('\n');
        const QStringList names = QDir(files->Path("same")).entryList(QDir::Files, QDir::Name);
        QCOMPARE(names.size(), 75);
        QByteArray pictures;
        QSet<QString> traced;
        for (int i = 0; i < names.size(); ++i) {
            const QImage picture(files->Path("same/" + names.at(i)));
            const QImage straight = picture.convertToFormat(QImage::Format_ARGB32);
            QCOMPARE(picture.size(), QSize(64, 32));
            pictures.append(reinterpret_cast<const char*>(straight.constBits()), 64 * 32 * 4);
            if (i > 64)
                continue;
            const QByteArray rows(reinterpret_cast<const char*>(straight.constBits()), 64 * 32 * 4);
            traced.insert(QJsonDocument::fromJson(lines.at(i)).object()["sha1"].toString());
            QCOMPARE(QJsonDocument::fromJson(lines.at(i)).object()["sha1"].toString().toLatin1(),
                     QCryptographicHash::hash(rows, QCryptographicHash::Sha1).toHex());
        }
        QVERIFY(pictures == decoded);
        QVERIFY(pictures.count('\0') < pictures.size());
        QVERIFY(traced.size() > 30);

        // A folder of frames is replaced, but not one that holds something else.
        QCOMPARE(files->Shell("animtext render one.json -o same/; ls same | wc -l").out.trimmed(),
                 QByteArray("4"));
        files->Write("same/notes.txt", "mine");
        const Outcome refused = files->Shell("animtext render one.json -o same/; ls same | wc -l");
        QVERIFY2(refused.errors.contains("also holds notes.txt"), refused.errors);
        QCOMPARE(refused.out.trimmed(), QByteArray("5"));
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
        const QStringList before = files->Everything();
        const Outcome outcome = files->Shell(
            "PATH=" + programs.Path("") +
            " " ANIMTEXT_PROGRAMS "/animtext render two.json -o old.gif --seconds 15 --scale 4");
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
