#include "datafile.h"
#include "glyphfiles.h"
#include "scenestore.h"

#include <QPainterPath>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace AnimText;

namespace {

/** A scene of @p count characters, with its data files; other counts have other files. */
struct Sample
{
    Sample(const QString& path, int count)
    {
        QVector<QPainterPath> outlines(count);
        for (QPainterPath& outline : outlines)
            outline.addRect(0, -10, 1 + count, 10);
        const QByteArray paths = PathFile(outlines);
        const QByteArray descents = DescentFile(QVector<int>(count, count));
        SceneNode node;
        node.size = QSize(100, 20);
        node.attributes[QStringLiteral("Text")] = QString(count, QLatin1Char('x'));
        node.files[QStringLiteral("PathData")] = DataFileName(path, paths, QStringLiteral("path"));
        node.files[QStringLiteral("DescentVector")] =
            DataFileName(path, descents, QStringLiteral("descent"));
        files[node.files[QStringLiteral("PathData")]] = paths;
        files[node.files[QStringLiteral("DescentVector")]] = descents;
        scene.display = node.size;
        scene.pages = {ScenePage{{SceneArea{{node}}}}};
    }

    Scene scene;
    QMap<QString, QByteArray> files;
};

/** Empty when the scene at @p path and its data files fit together, else what is wrong. */
QString FaultOf(const QString& path)
{
    Scene scene;
    QString error;
    if (!ReadScene(path, &scene, &error))
        return error;
    const SceneNode& node = *scene.Nodes().value(0);
    const int count = node.attributes.value(QStringLiteral("Text")).toString().size();
    const auto file = [&](const char* key) {
        return ResolveSceneFile(path, node.files.value(QLatin1String(key)));
    };
    const DataFile paths = LookIntoPathFile(file("PathData"));
    const DataFile descents = LookIntoDescentFile(file("DescentVector"));
    if (!paths.fault.isEmpty() || !descents.fault.isEmpty())
        return paths.fault + descents.fault;
    if (paths.entries != count || descents.descents != QVector<int>(count, count))
        return QStringLiteral("the files belong to another text");
    return QString();
}

/** Runs @p work in a process of its own and kills it right before its system call @p calls. */
enum class Ending { Killed, Finished, Untraceable };
template <typename Work>
Ending RunAndKill(int calls, Work work)
{
    const pid_t child = fork();
    if (child == 0) {
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            _exit(99);
        raise(SIGSTOP);
        work();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    for (int stops = 0; WIFSTOPPED(status) && stops < 2 * calls; ++stops) {
        ptrace(PTRACE_SYSCALL, child, nullptr, nullptr); // stops before and after each call
        waitpid(child, &status, 0);
    }
    if (WIFEXITED(status))
        return WEXITSTATUS(status) == 99 ? Ending::Untraceable : Ending::Finished;
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    return Ending::Killed;
}

} // namespace

class SceneStoreTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void replacedFilesGo();
    void sharedAndForeignFilesStay();
    void damagedFileIsWrittenAnew();
    void failuresLeaveNothing_data();
    void failuresLeaveNothing();
    void killedBeforeEachSystemCall();
    void killedAtRandom();

private:
    bool Save(const Sample& sample) { return SaveScene(path, sample.scene, sample.files, &error); }
    QStringList Listing() const
    {
        return QDir(folder->path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QScopedPointer<QTemporaryDir> folder;
    QString path;
    QString error;
};

void SceneStoreTest::init()
{
    folder.reset(new QTemporaryDir);
    path = folder->filePath(QStringLiteral("sign.json"));
    error.clear();
}

void SceneStoreTest::replacedFilesGo()
{
    const Sample first(path, 3);
    const Sample second(path, 4);
    QVERIFY2(Save(first), qPrintable(error));
    QVERIFY2(Save(second), qPrintable(error));
    QCOMPARE(Listing(), second.files.keys() + QStringList(QStringLiteral("sign.json")));
    QCOMPARE(FaultOf(path), QString());
}

void SceneStoreTest::sharedAndForeignFilesStay()
{
    const QString copy = folder->filePath(QStringLiteral("copy.json"));
    Sample first(path, 3);
    QVERIFY(Save(first) && QFile::copy(path, copy));
    QVERIFY(Save(Sample(path, 4)));
    QCOMPARE(FaultOf(copy), QString());

    // A file that the author named and made is not ours to remove.
    SceneNode& node = first.scene.pages[0].areas[0].nodes[0];
    node.files[QStringLiteral("PathData")] = QStringLiteral("mine.path");
    first.files[QStringLiteral("mine.path")] = "mine";
    QVERIFY(Save(first) && Save(Sample(path, 5)));
    QVERIFY(Listing().contains(QStringLiteral("mine.path")));
}

void SceneStoreTest::damagedFileIsWrittenAnew()
{
    const Sample sample(path, 3);
    QVERIFY(Save(sample));
    QFile file(folder->filePath(sample.files.firstKey()));
    QVERIFY(file.resize(7));
    QVERIFY(!FaultOf(path).isEmpty());
    QVERIFY(Save(sample));
    QCOMPARE(FaultOf(path), QString());
}

void SceneStoreTest::failuresLeaveNothing_data()
{
    QTest::addColumn<QString>("obstacle"); // a folder where a file should be, or nothing
    QTest::addColumn<QString>("scene");

    const QString sign = QStringLiteral("sign.json");
    QTest::newRow("a folder has the scene's name") << sign << sign;
    QTest::newRow("no such folder") << QString() << QStringLiteral("none/sign.json");
    for (const QString& file : Sample(sign, 3).files.keys())
        QTest::addRow("a folder has the name %s", qPrintable(file)) << file << sign;
}

void SceneStoreTest::failuresLeaveNothing()
{
    QFETCH(QString, obstacle);
    QFETCH(QString, scene);
    if (!obstacle.isEmpty())
        QVERIFY(QDir(folder->path()).mkdir(obstacle));
    path = folder->filePath(scene);
    QVERIFY(!Save(Sample(path, 3)));
    QVERIFY2(error.startsWith(folder->path()) && !error.contains(QLatin1Char('\n')),
             qPrintable(error));
    QCOMPARE(Listing(), QStringList());
}

void SceneStoreTest::killedBeforeEachSystemCall()
{
    const Sample before(path, 3);
    const Sample after(path, 4);
    QVERIFY(Save(before));
    Ending ending = Ending::Killed;
    int calls = 0;
    for (; ending == Ending::Killed && calls < 10000; ++calls) {
        ending = RunAndKill(calls, [&] { Save(after); });
        if (ending == Ending::Untraceable)
            QSKIP("processes cannot be traced here");
        QVERIFY2(FaultOf(path).isEmpty(), qPrintable(FaultOf(path)));
        for (const QString& file : Listing())
            QFile::remove(folder->filePath(file));
        QVERIFY(Save(before));
    }
    QCOMPARE(ending, Ending::Finished);
    QVERIFY2(calls > 20, qPrintable(QString::number(calls))); // or nothing was written at all
}

// ANIMTEXT_KILLS=500 kills that often.
void SceneStoreTest::killedAtRandom()
{
    const int kills = qMax(50, qEnvironmentVariableIntValue("ANIMTEXT_KILLS"));
    QRandomGenerator random(4711);
    QVector<Sample> samples;
    for (int count = 1; count <= 5; ++count)
        samples.append(Sample(path, count * count * count));
    QVERIFY(Save(samples[0]));
    for (int round = 0; round < kills; ++round) {
        const int seed = int(random.bounded(1 << 30));
        const Ending ending = RunAndKill(random.bounded(1200), [&] {
            QRandomGenerator choice(static_cast<quint32>(seed));
            for (;;)
                Save(samples[choice.bounded(samples.size())]);
        });
        if (ending == Ending::Untraceable)
            QSKIP("processes cannot be traced here");
        QCOMPARE(ending, Ending::Killed);
        QVERIFY2(FaultOf(path).isEmpty(), qPrintable(FaultOf(path)));
    }
}

QTEST_GUILESS_MAIN(SceneStoreTest)
#include "tst_scenestore.moc"
