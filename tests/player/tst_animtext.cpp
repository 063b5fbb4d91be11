#include "testscene.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QtEndian>
#include <QtTest>

using namespace AnimText;

namespace {

constexpr double frameMs = 66;

/** What a program made of its words. */
struct Outcome
{
    int status = -1;
    QByteArray out;
    QByteArray errors;
};

Outcome Run(const QString& program, const QStringList& words,
            const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, words);
    process.closeWriteChannel();
    process.waitForFinished(-1);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

Outcome Animtext(const QStringList& words)
{
    return Run(QCoreApplication::applicationDirPath() + QStringLiteral("/animtext"), words);
}

QStringList Words(const QString& line)
{
    return line.split(QLatin1Char(' '));
}

struct Film
{
    int frames = 0;
    double milliseconds = 0;
};

/** Animated WebP is unknown to ffprobe. Equal pictures are one there, shown for longer. */
Film ProbeWebP(const QByteArray& file)
{
    Film film;
    for (int at = 12; at + 8 <= file.size();) {
        const quint32 size = qFromLittleEndian<quint32>(file.constData() + at + 4);
        if (file.mid(at, 4) == "ANMF") {
            film.milliseconds +=
                qFromLittleEndian<quint32>(file.constData() + at + 8 + 12) & 0xFFFFFF;
            ++film.frames;
        }
        at += 8 + int(size + size % 2);
    }
    return film;
}

/** The pictures and the time up to the end of the last one. */
Film Probe(const QString& path)
{
    const QByteArray out = Run(QStringLiteral("ffprobe"),
                               Words(QStringLiteral("-v error -select_streams v -show_entries "
                                                    "packet=pts_time,duration_time -of csv=p=0")) +
                                   QStringList(path))
                               .out;
    Film film;
    for (const QByteArray& line : out.split('\n')) {
        const QList<QByteArray> times = line.split(',');
        if (times.size() < 2)
            continue;
        ++film.frames;
        film.milliseconds =
            qMax(film.milliseconds, (times.at(0).toDouble() + times.at(1).toDouble()) * 1000);
    }
    return film;
}

} // namespace

class TestAnimtext : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tracesLinesAsFixed();
    void tracesCallsBeforeTheirTick();
    void tracesTheSameAgain_data();
    void tracesTheSameAgain();
    void rendersFilms_data();
    void rendersFilms();
    void rendersThePicturesThemselves();
    void replacesItsOwnFolder();
    void refuses_data();
    void refuses();
    void leavesNothingWhenTheEncoderFails_data();
    void leavesNothingWhenTheEncoderFails();
    void tellsDurations();
    void listsEffects();
    void drawsSheets();
    void helps();

private:
    QStringList Listing() const;
    QProcessEnvironment WithEncoder(const QByteArray& script);

    TestScenes files;
    QString onePage;  // three characters: 4 pictures at speed 9
    QString twoPages; // six of them in an area for four, with holds
};

void TestAnimtext::initTestCase()
{
    onePage = files.Save(TestScenes::Of({files.Node({})}), QStringLiteral("one.json"));
    twoPages = files.Save(TestScenes::Of({files.Node({QStringLiteral("abcdef"), 9, 9, 3})}),
                          QStringLiteral("two.json"));
}

QStringList TestAnimtext::Listing() const
{
    return QDir(files.Folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

void TestAnimtext::tracesLinesAsFixed()
{
    const SceneNode blank = files.Node({QStringLiteral(" ")});
    const QString path = files.Save(TestScenes::Of({files.Node({}), blank}));
    const Outcome trace = Animtext({"trace", path, "--ticks", "3"});
    QCOMPARE(trace.status, 0);
    QCOMPARE(trace.errors, QByteArray());
    const QList<QByteArray> lines = trace.out.trimmed().split('\n');
    QCOMPARE(lines.size(), 2 * 4);
    const QRegularExpression shape(QStringLiteral(
        "^\\{\"tick\":(\\d+),\"ms\":(\\d+),\"node\":0,\"swap\":true,\"layer\":0,\"w\":64,\"h\":32,"
        "\"sha1\":\"[0-9a-f]{40}\",\"state\":([01])\\}$"));
    for (int tick = 0; tick < 4; ++tick) {
        const auto match = shape.match(QString::fromUtf8(lines.at(2 * tick)));
        QVERIFY2(match.hasMatch(), lines.at(2 * tick).constData());
        QCOMPARE(match.captured(1).toInt(), tick);
        QCOMPARE(match.captured(2).toInt(), 66 * tick);
        QCOMPARE(match.captured(3).toInt(), tick == 3 ? 0 : 1);
        QCOMPARE(lines.at(2 * tick + 1),
                 QByteArray("{\"tick\":%1,\"ms\":%2,\"node\":1,\"swap\":false,\"layer\":0,\"w\":0,"
                            "\"h\":0,\"sha1\":\"\",\"state\":2}")
                     .replace("%1", QByteArray::number(tick))
                     .replace("%2", QByteArray::number(66 * tick)));
    }
    // The first picture is empty: 64 × 32 pixels of four zero bytes.
    const QByteArray zeros(64 * 32 * 4, '\0');
    QVERIFY(
        lines.first().contains(QCryptographicHash::hash(zeros, QCryptographicHash::Sha1).toHex()));
}

void TestAnimtext::tracesCallsBeforeTheirTick()
{
    const Outcome trace = Animtext({"trace", onePage, "--ticks", "2", "--calls"});
    QCOMPARE(trace.status, 0);
    QStringList kinds;
    for (const QByteArray& line : trace.out.trimmed().split('\n')) {
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        kinds.append(object.contains("tick") ? QStringLiteral("tick")
                                             : object.value("call").toString());
    }
    QCOMPARE(kinds.join(QLatin1Char(' ')),
             QStringLiteral("CreatePictureSession AddPictureSession GetPicImageLayerPtr "
                            "SwapPicImageLayerPtr SetPicLayerBlend tick SwapPicImageLayerPtr tick "
                            "SwapPicImageLayerPtr tick"));
}

void TestAnimtext::tracesTheSameAgain_data()
{
    QTest::addColumn<int>("effectType");
    QTest::addColumn<int>("motion");
    QTest::addColumn<bool>("alphaBlend");
    QTest::newRow("trembling") << 0 << 8 << true;
    QTest::newRow("with a colour key") << 0 << 28 << false;
    QTest::newRow("sideways") << 1 << 0 << true;
    QTest::newRow("upwards") << 1 << 2 << false;
    QTest::newRow("unknown effect") << 0 << 99 << true;
    QTest::newRow("unknown mode") << 7 << 0 << true;
}

/** Metrics are shorter than the text, and what neon and dazzle paint is in the calls. */
void TestAnimtext::tracesTheSameAgain()
{
    QFETCH(int, effectType);
    QFETCH(int, motion);
    QFETCH(bool, alphaBlend);
    SceneNode node = files.Node({QStringLiteral("abcdefgh"), motion, 7, 1, 2});
    node.attributes[QStringLiteral("EffectType")] = effectType;
    node.attributes[QStringLiteral("ContinueStyle")] = motion;
    node.attributes[QStringLiteral("CheckNeonBg")] = 1;
    node.attributes[QStringLiteral("CheckDazzle")] = 1;
    node.lists[QStringLiteral("TextWidth")].erase(node.lists[QStringLiteral("TextWidth")].begin() +
                                                      3,
                                                  node.lists[QStringLiteral("TextWidth")].end());
    node.files.remove(QStringLiteral("DescentVector"));
    Scene scene = TestScenes::Of({node});
    scene.alphaBlend = alphaBlend;
    const QString path = files.Save(scene);
    const QStringList words{"trace", path, "--ticks", "60", "--calls"};
    const Outcome first = Animtext(words);
    QCOMPARE(first.status, 0);
    QVERIFY(first.out.count('\n') > 61);
    QCOMPARE(Animtext(words).out, first.out);
}

void TestAnimtext::rendersFilms_data()
{
    QTest::addColumn<QString>("scene");
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("frames");
    // Effect 9 takes 46 / 5 pictures a character, rounded up; 300 ms of hold are five ticks.
    const int two = 6 * 10 + 2 * 5 + 5;
    for (const char* kind : {"gif", "apng", "webp", "mp4", "webm"}) {
        QTest::addRow("one page, %s", kind) << onePage << "" << 4;
        QTest::addRow("two pages, %s", kind) << twoPages << "--background #102030" << two;
        QTest::addRow("seconds, %s", kind) << twoPages << "--seconds 1 --scale 3" << 15;
        QTest::addRow("some frames, %s", kind) << twoPages << "--frames 7-20" << 14;
    }
}

void TestAnimtext::rendersFilms()
{
    QFETCH(QString, scene);
    QFETCH(QString, options);
    QFETCH(int, frames);
    const QString kind =
        QString::fromLatin1(QTest::currentDataTag()).section(QLatin1String(", "), 1);
    const QString film = files.Path(QStringLiteral("film.") + kind);
    QFile::remove(film);
    const QStringList before = Listing();
    QStringList words{"render", scene, "-o", film};
    if (!options.isEmpty())
        words += Words(options);
    const Outcome outcome = Animtext(words);
    QCOMPARE(outcome.errors, QByteArray());
    QCOMPARE(outcome.status, 0);
    QStringList after = Listing();
    after.removeAll(QFileInfo(film).fileName());
    QCOMPARE(after, before);

    QFile file(film);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const bool webp = kind == QLatin1String("webp");
    const Film probed = webp ? ProbeWebP(file.readAll()) : Probe(film);
    if (!webp)
        QCOMPARE(probed.frames, frames);
    QVERIFY2(qAbs(probed.milliseconds - frames * frameMs) <= frameMs,
             qPrintable(QString::number(probed.milliseconds)));
}

/** An APNG loses nothing, so it has to be what the folder has. */
void TestAnimtext::rendersThePicturesThemselves()
{
    const QString film = files.Path(QStringLiteral("same.apng"));
    const QString folder = files.Path(QStringLiteral("same/"));
    QCOMPARE(Animtext({"render", twoPages, "-o", film}).status, 0);
    QCOMPARE(Animtext({"render", twoPages, "-o", folder}).status, 0);
    const QByteArray decoded =
        Run(QStringLiteral("ffmpeg"),
            Words(QStringLiteral("-v error -i %1 -f rawvideo -pix_fmt bgra pipe:1").arg(film)))
            .out;
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    QCOMPARE(names.size(), 75);
    QCOMPARE(names.first(), QStringLiteral("frame-0000.png"));
    const int size = 64 * 32 * 4;
    QCOMPARE(decoded.size(), names.size() * size);
    int painted = 0;
    for (int i = 0; i < names.size(); ++i) {
        QImage picture(folder + names.at(i));
        QCOMPARE(picture.size(), QSize(64, 32));
        picture = picture.convertToFormat(QImage::Format_ARGB32);
        const QByteArray bytes(reinterpret_cast<const char*>(picture.constBits()), size);
        QVERIFY(bytes == decoded.mid(i * size, size));
        painted += bytes.count('\0') == size ? 0 : 1;
    }
    QVERIFY(painted > 60);
}

void TestAnimtext::replacesItsOwnFolder()
{
    const QString folder = files.Path(QStringLiteral("again"));
    QVERIFY(QDir().mkpath(folder));
    QCOMPARE(Animtext({"render", twoPages, "-o", folder}).status, 0);
    QCOMPARE(Animtext({"render", onePage, "-o", folder}).status, 0);
    QCOMPARE(QDir(folder).entryList(QDir::Files).size(), 4);
    files.Write(QStringLiteral("again/notes.txt"), "mine");
    const Outcome refused = Animtext({"render", onePage, "-o", folder});
    QCOMPARE(refused.status, 1);
    QVERIFY2(refused.errors.contains("also holds notes.txt"), refused.errors.constData());
    QCOMPARE(QDir(folder).entryList(QDir::Files).size(), 5);
}

/** The words "SCENE", "BAD" and "DIR" stand for a good scene, one with a fault, and the folder. */
void TestAnimtext::refuses_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* words, int status, const char* expected) {
        QTest::newRow(words) << QString::fromLatin1(words) << status << QByteArray(expected);
    };
    row("rendr SCENE", 2, "did you mean render?");
    row("trace", 2, "expected SCENE.json");
    row("trace SCENE SCENE", 2, "one word too many");
    row("trace SCENE --ticks many", 2, "--ticks takes a whole number");
    row("trace SCENE --tick 3", 2, "tick");
    row("trace DIR/none.json", 2, "none.json: there is no such file");
    row("trace BAD", 2, "bad.json: $.pages: expected a list");
    row("trace SCENE --plugin DIR/none.so", 1, "there is no plugin at");
    row("trace SCENE --plugin SCENE", 1, "cannot be loaded");
    row("render SCENE", 2, "expected -o");
    row("render SCENE -o DIR/film.avi", 2, "expected a name that ends with .gif, .apng");
    row("render SCENE -o DIR/none/film.gif", 1, "none/film.gif cannot be written");
    row("render SCENE -o DIR/none/frames/", 1, "no folder can be made in");
    row("render SCENE -o SCENE/", 1, "is a file");
    row("render BAD -o DIR/film.gif", 2, "bad.json: $.pages");
    row("render SCENE -o DIR/film.gif --seconds soon", 2, "--seconds takes a number");
    row("render SCENE -o DIR/film.gif --seconds -1", 2, "--seconds takes a number");
    row("render SCENE -o DIR/film.gif --scale 0", 2, "--scale takes a whole number");
    row("render SCENE -o DIR/film.gif --frames 5", 2, "--frames takes the first and the last");
    row("render SCENE -o DIR/film.gif --frames 2-99", 2, "the film has the pictures 0 to 3");
    row("render SCENE -o DIR/film.gif --background mud", 2, "--background takes a colour");
    row("render ENDLESS -o DIR/film.gif", 2, "say how much of it to play");
    row("sheet SCENE -o DIR/sheet.gif", 2, "expected a name that ends with .png");
    row("sheet SCENE BAD -o DIR/sheet.png", 2, "bad.json: $.pages");
    row("sheet SCENE -o DIR/none/sheet.png", 1, "cannot be written");
    row("duration BAD", 2, "bad.json: $.pages");
}

void TestAnimtext::refuses()
{
    QFETCH(QString, words);
    QFETCH(int, status);
    QFETCH(QByteArray, expected);
    files.Write(QStringLiteral("bad.json"),
                R"({"scene": 1, "display": {"width": 8, "height": 8}, "pages": 1})");
    files.Save(TestScenes::Of({files.Node({QStringLiteral("abc"), 4, 9, 0, 1000000})}),
               QStringLiteral("endless.json"));
    QStringList list = Words(words);
    list.replaceInStrings(QStringLiteral("SCENE"), onePage)
        .replaceInStrings(QStringLiteral("BAD"), files.Path(QStringLiteral("bad.json")))
        .replaceInStrings(QStringLiteral("ENDLESS"), files.Path(QStringLiteral("endless.json")))
        .replaceInStrings(QStringLiteral("DIR"), files.Folder());
    const QStringList before = Listing();
    const Outcome outcome = Animtext(list);
    QVERIFY2(outcome.errors.contains(expected), outcome.errors.constData());
    QVERIFY2(outcome.errors.count('\n') == 1, outcome.errors.constData());
    QCOMPARE(outcome.out, QByteArray());
    QCOMPARE(outcome.status, status);
    QCOMPARE(Listing(), before);
}

/** An environment whose ffmpeg is @p script; without one there is none. */
QProcessEnvironment TestAnimtext::WithEncoder(const QByteArray& script)
{
    const QString folder = files.Path(QStringLiteral("programs"));
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    if (!script.isEmpty()) {
        files.Write(QStringLiteral("programs/ffmpeg"), "#!/bin/sh\n" + script);
        QFile::setPermissions(folder + QStringLiteral("/ffmpeg"),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"), folder);
    return environment;
}

void TestAnimtext::leavesNothingWhenTheEncoderFails_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray missing = "apt-get install ffmpeg";
    QTest::newRow("is missing") << QByteArray() << missing;
    QTest::newRow("fails at once")
        << QByteArray("echo one >&2; echo two >&2; exit 3\n") << QByteArray("ffmpeg failed: two\n");
    QTest::newRow("fails at the end") << QByteArray("/bin/cat >/dev/null; echo full >&2; exit 1\n")
                                      << QByteArray("ffmpeg failed: full\n");
    QTest::newRow("is killed") << QByteArray("kill -9 $$\n") << QByteArray("ffmpeg failed: ");
    QTest::newRow("interruption while it takes pictures")
        << QByteArray("kill -TERM $PPID; /bin/cat >/dev/null; while :; do :; done\n")
        << QByteArray("interrupted\n");
    QTest::newRow("interruption while it ends")
        << QByteArray("/bin/cat >/dev/null; kill -TERM $PPID; while :; do :; done\n")
        << QByteArray("interrupted\n");
}

void TestAnimtext::leavesNothingWhenTheEncoderFails()
{
    QFETCH(QByteArray, script);
    QFETCH(QByteArray, expected);
    const QProcessEnvironment environment = WithEncoder(script);
    files.Write(QStringLiteral("old.gif"), "the old film");
    const QStringList before = Listing();
    const Outcome outcome =
        Run(QCoreApplication::applicationDirPath() + QStringLiteral("/animtext"),
            {"render", twoPages, "-o", files.Path(QStringLiteral("old.gif")), "--seconds", "15",
             "--scale", "4"},
            environment);
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains(expected), outcome.errors.constData());
    QCOMPARE(Listing(), before);
    QFile old(files.Path(QStringLiteral("old.gif")));
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), QByteArray("the old film"));
}

void TestAnimtext::tellsDurations()
{
    // Three characters at a picture every tick, and one hold of 300 ms.
    const QString path = files.Save(TestScenes::Of({files.Node({QStringLiteral("abc"), 4, 9, 3})}));
    QCOMPARE(Animtext({"duration", path, "--json"}).out, QByteArray("{\"duration\":498}\n"));
    QCOMPARE(Animtext({"duration", path, "--json", "--simulate"}).out,
             QByteArray("{\"duration\":498,\"simulated\":{\"animationTicks\":4,\"holdTicks\":5,"
                        "\"finishedMs\":528}}\n"));
    const QByteArray words = Animtext({"duration", path, "--simulate"}).out;
    QVERIFY2(words.contains("4 ticks of animation and 5 ticks of holds"), words.constData());

    const QByteArray table = Animtext({"duration", path, "--table", "--json"}).out;
    const QList<QByteArray> lines = table.trimmed().split('\n');
    QCOMPARE(lines.size(), 30 * 4);
    const QJsonObject swing = QJsonDocument::fromJson(lines.at(6 * 4 + 2)).object();
    QCOMPARE(swing.value("name").toString(), QStringLiteral("SwingEffect"));
    QCOMPARE(swing.value("speed").toInt(), 5);
    QCOMPARE(swing.value("duration").toInt(), 360 * 66 + 300);
    QCOMPARE(swing.value("simulated").toObject().value("animationTicks").toInt(), 361);
    QCOMPARE(Animtext({"duration", path, "--table"}).out.count('\n'), 4 + 30);
}

void TestAnimtext::listsEffects()
{
    const Outcome json = Animtext({"effects", "--json"});
    QCOMPARE(json.status, 0);
    const QJsonObject lists = QJsonDocument::fromJson(json.out).object();
    const QJsonArray effects = lists.value("effects").toArray();
    QCOMPARE(effects.size(), 30);
    QCOMPARE(lists.value("scrolls").toArray().size(), 4);
    // Eight characters a picture every five ticks, and one picture without any.
    QCOMPARE(effects.at(4).toObject().value("ticksPerPage").toInt(), 9 * 5);
    QCOMPARE(effects.at(29).toObject().value("ticksPerPage").toInt(), 361);
    const Outcome table = Animtext({"effects"});
    QCOMPARE(table.errors, QByteArray());
    QCOMPARE(table.out.count('\n'), 1 + 30 + 1 + 1 + 4);
}

void TestAnimtext::drawsSheets()
{
    const QString path = files.Path(QStringLiteral("sheet.png"));
    QCOMPARE(Animtext({"sheet", onePage, "-o", path}).status, 0);
    const QImage one(path);
    QCOMPARE(Animtext({"sheet", onePage, twoPages, "-o", path}).status, 0);
    const QImage two(path);
    QVERIFY(!one.isNull());
    QCOMPARE(two.width(), one.width());
    QVERIFY(two.height() > one.height() + 50);
}

void TestAnimtext::helps()
{
    QVERIFY(Animtext({"--help"}).out.startsWith("Animated text:"));
    QVERIFY(Animtext({"--version"}).out.startsWith("animtext "));
    for (const char* command :
         {"author", "render", "sheet", "trace", "duration", "validate", "effects"}) {
        const Outcome outcome = Animtext({command, "--help"});
        QCOMPARE(outcome.status, 0);
        QVERIFY2(outcome.out.startsWith(QByteArray("Usage: animtext ") + command),
                 outcome.out.constData());
    }
}

QTEST_GUILESS_MAIN(TestAnimtext)

#include "tst_animtext.moc"
