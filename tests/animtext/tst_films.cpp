// Films that animtext render writes, and what is left when it cannot.
#include "table.h"
#include "testscene.h"

#include <QCryptographicHash>
#include <QImage>
#include <QJsonDocument>
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
        const int scale = options.contains("--scale 3") ? 3 : 1;
        QCOMPARE(QString(outcome.out),
                 QString("Wrote %1: %2 x %3, %4 s, %5 frame%6, %7\n")
                     .arg(name)
                     .arg(64 * scale)
                     .arg(32 * scale)
                     .arg(frames * 0.066, 0, 'f', 1)
                     .arg(frames)
                     .arg(frames == 1 ? "" : "s")
                     .arg(QLocale::c().formattedDataSize(QFileInfo(files->Path(name)).size(), 1,
                                                         QLocale::DataSizeSIFormat)));
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
        row("vivid.gif", ""); // of about 250
        row("clear.gif", "--transparent");
        row("motley.apng", ""); // of more colors than a table holds
        row("motley.gif", "");
    }

    /** What loses nothing is what the folder has; and that, unless it is over black, is what was
     * traced. A palette of chosen colors comes near. */
    void rendersThePicturesThemselves()
    {
        QFETCH(QString, options);
        const QString film = QTest::currentDataTag();
        const bool isMotley = film.startsWith("motley");
        const bool isClear = film.startsWith("clear");
        const bool isVivid = film.startsWith("vivid");
        if (isMotley || isVivid)
            files->Save(files->Of({files->Node({"abcdef", 9, 9, 3},
                                               {{"CheckDazzle", 1},
                                                {"CheckColorGradient", isMotley ? 1 : 0},
                                                {"ColorGradient", 2}})}),
                        "two.json");
        const QString render = "animtext render two.json --frames 5-70 " + options + " -o ";
        QCOMPARE(files->Shell(render + "same/ && " + render + film).errors, QByteArray());
        QByteArray decoded = files
                                 ->Shell("ffmpeg -v error -i " + film +
                                         " -fps_mode passthrough -f rawvideo -pix_fmt bgra pipe:1")
                                 .out;
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
            if (!isClear) {
                QCOMPARE(qAlpha(picture.pixel(0, 0)), 255);
                QCOMPARE(picture.pixel(0, 0) == qRgb(0, 0, 0), !isMotley && !isVivid);
            } else if (i <= 64) {
                traced.insert(QJsonDocument::fromJson(lines.at(i)).object()["sha1"].toString());
                QCOMPARE(
                    QJsonDocument::fromJson(lines.at(i)).object()["sha1"].toString().toLatin1(),
                    QCryptographicHash::hash(rows, QCryptographicHash::Sha1).toHex());
            }
        }
        QCOMPARE(decoded.size(), pictures.size());
        auto* pixels = reinterpret_cast<QRgb*>(decoded.data());
        std::replace_if(
            pixels, pixels + decoded.size() / 4, [](QRgb pixel) { return qAlpha(pixel) == 0; }, 0U);
        qint64 difference = 0;
        for (int i = 0; i < pictures.size(); ++i)
            difference += qAbs(uchar(pictures.at(i)) - uchar(decoded.at(i)));
        QVERIFY2(difference <= (film == "motley.gif" ? 6LL * pictures.size() : 0),
                 QByteArray::number(double(difference) / pictures.size()));
        QVERIFY(pictures.count('\0') < pictures.size());
        QVERIFY(traced.size() > 30 || !isClear);
    }

    void progressIsForPrograms()
    {
        const QString render = "animtext render two.json --progress --seconds 5 -o ";
        const QByteArray lines = files->Shell(render + "a.gif").out;
        QVERIFY2(lines.contains("76 76 collecting colors\n") &&
                     lines.contains("76 76 rendering\nWrote a.gif: 64 x 32, 5.0 s, 76 frames, "),
                 lines);
        const QStringList before = files->Everything();
        QCOMPARE(
            files->Shell(render + "b/ >/dev/full").errors,
            QByteArray("animtext: cannot write to standard output: No space left on device\n"));
        files->Shell(render + "b/ | true"); // whoever wanted it is gone
        QCOMPARE(files->Everything(), before);
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
