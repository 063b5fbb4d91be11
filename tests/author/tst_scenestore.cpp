#include "testfolder.h"

#include "author/scenestore.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <csignal>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace AnimText;

namespace {

/** A scene with two data files; other texts have other files. */
struct Sample
{
    Sample(const QString& path, const QString& text)
    {
        SceneNode node;
        node.size = QSize(100, 20);
        node.attributes["Text"] = text;
        for (const QString suffix : {"path", "descent"}) {
            const QByteArray content = (suffix + " of " + text).toUtf8();
            const QString name = DataFileName(path, content, suffix);
            node.files[suffix == "path" ? "PathData" : "DescentVector"] = name;
            files[name] = content;
        }
        scene.path = path;
        scene.display = node.size;
        scene.pages = {ScenePage{{SceneArea{{node}}}}};
    }

    Scene scene;
    QMap<QString, QByteArray> files;
};

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

class tst_scenestore : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        folder.reset(new TestFolder);
        path = folder->Path("sign.json");
    }

    void replacedFilesGo()
    {
        const Sample second(path, "second");
        QVERIFY(Save(Sample(path, "first")) && Save(second));
        QVERIFY(Holds("sign.json", second));
        QCOMPARE(folder->Listing(), second.files.keys() + QStringList("sign.json"));
    }

    void sharedAndForeignFilesStay()
    {
        Sample first(path, "first");
        QVERIFY(Save(first) && QFile::copy(path, folder->Path("copy.json")));
        QVERIFY(Save(Sample(path, "second")));
        QVERIFY(Holds("copy.json", first));

        // A file that the author named and made is not ours to remove.
        first.scene.pages[0].areas[0].nodes[0].files["PathData"] = "mine.path";
        first.files["mine.path"] = "mine";
        QVERIFY(Save(first) && Save(Sample(path, "third")));
        QVERIFY(folder->Listing().contains("mine.path"));
    }

    void damagedFileIsWrittenAnew()
    {
        const Sample sample(path, "text");
        QVERIFY(Save(sample));
        folder->Write(sample.files.firstKey(), QByteArray(sample.files.first().size(), 'A'));
        QVERIFY(Save(sample) && Holds("sign.json", sample));
    }

    void failuresLeaveNothing()
    {
        QStringList obstacles = Sample("sign.json", "a").files.keys();
        obstacles << "sign.json"
                  << "";
        for (const QString& obstacle : obstacles) {
            init();
            if (obstacle.isEmpty()) // a folder that is not there
                path = folder->Path("none/sign.json");
            else // a folder where a file should be
                QVERIFY(QDir().mkdir(folder->Path(obstacle)));
            QVERIFY(!Save(Sample(path, "a")));
            QVERIFY2(error.startsWith(folder->Path("")) && !error.contains('\n'),
                     qPrintable(error));
            QCOMPARE(folder->Listing(), QStringList());
        }
    }

    void killedBeforeEachSystemCall()
    {
        const Sample before(path, "before");
        const Sample after(path, "after");
        Ending ending = Ending::Killed;
        int calls = 0;
        for (; ending == Ending::Killed && calls < 10000; ++calls) {
            for (const QString& file : folder->Listing())
                QFile::remove(folder->Path(file));
            QVERIFY(Save(before));
            ending = RunAndKill(calls, [&] { Save(after); });
            if (ending == Ending::Untraceable)
                QSKIP("processes cannot be traced here");
            QVERIFY(Holds("sign.json", after) ||
                    (ending == Ending::Killed && Holds("sign.json", before)));
        }
        QCOMPARE(ending, Ending::Finished);
        QVERIFY2(calls > 20, qPrintable(QString::number(calls))); // or nothing was written at all
    }

    // ANIMTEXT_KILLS=500 kills that often.
    void killedAtRandom()
    {
        const QList<Sample> samples{Sample(path, "one"), Sample(path, "two"),
                                    Sample(path, "three")};
        QVERIFY(Save(samples.first()));
        QRandomGenerator random(4711);
        const int kills = qMax(20, qEnvironmentVariableIntValue("ANIMTEXT_KILLS"));
        for (int kill = 0; kill < kills; ++kill) {
            int next = random.bounded(samples.size());
            const Ending ending = RunAndKill(random.bounded(600), [&] {
                for (;;)
                    Save(samples.at(next++ % samples.size()));
            });
            if (ending == Ending::Untraceable)
                QSKIP("processes cannot be traced here");
            QVERIFY(std::any_of(samples.begin(), samples.end(), [this](const Sample& sample) {
                return Holds("sign.json", sample);
            }));
        }
    }

private:
    /** Whether the scene file is that of @p sample and its data files are whole. */
    bool Holds(const QString& name, const Sample& sample) const
    {
        bool holds = folder->Read(name) == SceneToJson(sample.scene);
        for (auto file = sample.files.begin(); file != sample.files.end(); ++file)
            holds = holds && folder->Read(file.key()) == file.value();
        return holds;
    }
    bool Save(const Sample& sample) { return SaveScene(sample.scene, sample.files, &error); }

    QScopedPointer<TestFolder> folder;
    QString path;
    QString error;
};

QTEST_GUILESS_MAIN(tst_scenestore)
#include "tst_scenestore.moc"
