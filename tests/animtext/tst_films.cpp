// Films that animtext render writes, and what is left when it cannot.
#include "table.h"
#include "testscene.h"

#include <QCryptographicHash>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

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
        const Table<QString> row("options");
        row("clear.apng", "--transparent");
        row("same.apng", "");
        row("same.mp4", "--lossless");
        row("same.webm", "--lossless");
        row("motley.apng", ""); // of more colours than a table of a PNG holds
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
