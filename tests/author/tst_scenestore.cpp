#include "table.h"
#include "testfolder.h"

#include "author/scenestore.h"
#include "files/failure.h"
#include "layout/glyphfiles.h"

#include <QPainterPath>

#include <csignal>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace AnimText;

namespace {

/** A sound scene with two data files; other texts have other files. */
struct Sample
{
    Sample(const QString& path, const QString& text)
    {
        scene::SceneNode node;
        node.size = QSize(100, 20);
        node.hold = 1;
        node.attributes = {{"Text", text}, {"AnimationEffect", 4}, {"PlayTimes", 1}};
        QPainterPath box;
        box.addRect(0, -10, 8, 10);
        QHash<QString, QString> style;
        for (const char* field : {"fontSize", "bold", "italic", "underline", "Color"})
            style.insert(field, "1");
        for (int i = 0; i < text.size(); ++i) {
            node.lists["TextWidth"].append({{"text_width", "9"}});
            node.lists["TextHeight"].append({{"text_height", "12"}});
            node.lists["TextAttribute"].append(style);
        }
        Add(&node, path, "PathData", layout::PathFile(QVector<QPainterPath>(text.size(), box)));
        Add(&node, path, "DescentVector",
            layout::DescentFile(QVector<int>(text.size(), text[0].unicode())));
        scene.path = path;
        scene.display = node.size;
        scene.pages = {scene::ScenePage{{scene::SceneArea{{node}}}}};
    }

    scene::SceneNode& Node() { return scene.At({}); }
    const scene::SceneNode& Node() const { return scene.At({}); }

    scene::Scene scene;
    author::DataFiles files;

private:
    void Add(scene::SceneNode* node, const QString& path, const char* key,
             const QByteArray& content)
    {
        node->files[key] = author::DataFileName(path, key, content);
        files[node->files[key]] = content;
    }
};

/** Runs @p work in another process and kills that right before its system call @p calls. */
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

/** Runs @p work in another process, which exits with its result. */
template <typename Work>
pid_t Begin(Work work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(int(work()));
    return child;
}
int End(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class TestSceneStore : public QObject
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
        QCOMPARE(Save(Sample(path, "first")), author::Storing::Saved);
        QCOMPARE(Save(second), author::Storing::Saved);
        QVERIFY(Holds("sign.json", second));
        QCOMPARE(folder->Listing(), second.files.keys() + QStringList("sign.json"));
    }

    void neededFilesStay_data()
    {
        // content: "%1" is the name of a data file that the scene in "signs" no longer needs
        const Table<QString, QString, bool> row("file", "content", "stays");
        row("unrelated JSON", "signs/a.json", "[{\"a.path\": 1}]", false);
        row("unrelated text", "signs/a.txt", "sign.path", false);
        row("settings", "signs/.git/config", "[core]", false);
        row("a script", "signs/a.js", "\"use strict\"; '\\u00b7'", false);
        row("a film", "signs/a.gif", "GIF89a{%1", false);
        row("too far below", "signs/a/b/c.json", "[\"%1\"]", false);
        row("a scene", "signs/a.json", "[\"%1\"]", true);
        row("a key", "signs/a.json", "{\"%1\": 1}", true);
        row("a backup", "signs/sign.json.bak", "[{\"a\": \"./%1\"}]", true);
        row("hidden", "signs/.a", "[\"%1\"]", true);
        row("named like data", "signs/a.0123456789abcdef.path", "[\"%1\"]", true);
        row("escaped", "signs/a.json", "[\"\\u0073\\u0069gn%1\"]", true);
        row("escaped below a comment", "signs/a.jsonc", "//\n[\"\\u0073\\u0069gn%1\"]", true);
        row("escaped behind a number", "signs/a.json", "[1, \"\\u0073ign%1\"]", true);
        row("in capitals", "signs/a.json", "[\"SIGN%1\"]", true);
        row("below", "signs/a/b.json", "[\"../%1\"]", true);
        row("below, hidden", "signs/.a/b", "[\"../%1\"]", true);
        row("above", "a.json", "[\"signs/%1\"]", true);
        row("no JSON", "signs/a.txt", "cp %1 /media", true);
        row("torn", "signs/a.json", "[\"\\u0073\\u0069gn%1\"", true);
        row("a key twice", "signs/a.json", "{\"a\": \"\\u0073ign%1\", \"a\": 1}", true);
        row("two lines of JSON", "signs/a.json", "{}\n[\"\\u0073ign%1\"]", true);
    }

    void neededFilesStay()
    {
        QFETCH(QString, file);
        QFETCH(QString, content);
        QFETCH(bool, stays);
        QVERIFY(QDir().mkpath(QFileInfo(folder->Path(file)).path()) &&
                QDir().mkpath(folder->Path("signs")));
        path = folder->Path("signs/sign.json");
        const Sample first(path, "first");
        QCOMPARE(Save(first), author::Storing::Saved);
        const QString name = first.Node().files["DescentVector"];
        const bool isPartial = content.contains("gn%1") || content.contains("SIGN");
        folder->Write(file, content.arg(isPartial ? name.mid(4) : name).toUtf8());
        QCOMPARE(Save(Sample(path, "second")), author::Storing::Saved);
        QCOMPARE(QFile::exists(folder->Path("signs/" + name)), stays);
    }

    // Only data as it was made is removed, and nothing where a file cannot be looked at.
    void uncertainFilesStay_data()
    {
        const Table<QString, bool> row("obstacle", "stays");
        row("nothing", ":", false);
        row("changed", "echo mine >>$1", true);
        row("write-protected", "chmod a-w $1", true);
        row("a link", "mv $1 mine; ln -s mine $1", true);
        row("linked to", "ln -s $1 mine", true);
        row("UTF-16", "printf '{\\0}\\0' >a.json", true);
        row("a broken link", "ln -s none a.json", true);
        row("a trace", "printf '{\"tick\":0}\\n{\"tick\":1}\\n' >trace", false);
        row("a broken trace", "printf '{\"tick\":0}\\n{\"tick\\n' >trace", true);
        row("a pipe", "mkfifo a.json", true);
        row("too large", "truncate -s 65M a.json", true);
        row("a large film", "printf GIF89a >a.gif; truncate -s 65M a.gif", false);
    }

    void uncertainFilesStay()
    {
        QFETCH(QString, obstacle);
        QFETCH(bool, stays);
        const Sample first(path, "first");
        QCOMPARE(Save(first), author::Storing::Saved);
        const QString name = first.Node().files["DescentVector"];
        QProcess shell;
        shell.setWorkingDirectory(folder->Path(""));
        shell.start("/bin/sh", {"-c", obstacle, "sh", name});
        QVERIFY(shell.waitForFinished() && shell.exitCode() == 0);
        QCOMPARE(Save(Sample(path, "second")), author::Storing::Saved);
        QCOMPARE(folder->Listing().contains(name), stays);
    }

    // A scene never loses its own files, whatever it is called, and loses those that it replaces.
    void anyNameWorks()
    {
        QStringList names{"\"",
                          "a\\",
                          "a\tb",
                          "a\nb",
                          ".x",
                          ".",
                          "",
                          "a.b",
                          "-",
                          " ",
                          "*[a]?",
                          "..",
                          "\u00e9",
                          "e\u0301",
                          "a\uFEFF",
                          "%1",
                          QString(125, QChar(0xe9))};
        names += QString(250, 'x');
        for (const QString& name : names) {
            init();
            path = folder->Path(name + ".json");
            for (const char* text : {"first", "second"}) {
                const Sample sample(path, text);
                QVERIFY2(Save(sample) == author::Storing::Saved, qPrintable(error));
                QVERIFY2(Holds(name + ".json", sample), qPrintable(name));
                QCOMPARE(folder->Listing().size(), 3);
            }
        }
    }

    void tidiesWhatNoSceneNames()
    {
        QCOMPARE(Save(Sample(path, "first")), author::Storing::Saved);
        Sample orphan(folder->Path("gone.json"), "orphan");
        const QStringList before = folder->Listing();
        for (auto file = orphan.files.begin(); file != orphan.files.end(); ++file)
            folder->Write(file.key(), file.value());
        folder->Write("mine.path", "mine");
        QCOMPARE(author::TidyFolder(folder->Path(""), false), orphan.files.keys());
        folder->Write("torn.json", "{");
        try {
            author::TidyFolder(folder->Path(""), true);
            QFAIL("tidied");
        } catch (const files::Failure& failure) {
            QVERIFY2(failure.message.contains("torn.json"), qPrintable(failure.message));
        }
        QCOMPARE(folder->Listing().size(), before.size() + 4);
        folder->Remove("torn.json");
        folder->Remove("mine.path");
        author::TidyFolder(folder->Path(""), true);
        QCOMPARE(folder->Listing(), before);
    }

    void damagedFileIsWrittenAnew()
    {
        const Sample sample(path, "text");
        QCOMPARE(Save(sample), author::Storing::Saved);
        Sample refused = sample; // which removes none that was there
        refused.scene.display.setWidth(16385);
        for (const Sample& again : {sample, refused}) {
            folder->Write(sample.files.firstKey(), QByteArray(sample.files.first().size(), 'A'));
            QCOMPARE(Save(again) == author::Storing::Saved,
                     again.scene.display == sample.scene.display);
            QVERIFY(Holds("sign.json", sample));
        }
    }

    // Neither the data files nor the scene can be written; what was there is what is there.
    void failuresLoseNothing()
    {
        const Sample before(path, "before");
        const Sample after(path, "after");
        const QStringList obstacles = after.files.keys() + QStringList{"none/sign.json", "."};
        for (const QString& obstacle : obstacles) {
            init();
            QCOMPARE(Save(before), author::Storing::Saved);
            const QStringList listing = folder->Listing();
            if (after.files.contains(obstacle)) // a folder where a file should be
                QVERIFY(QDir().mkdir(folder->Path(obstacle)));
            else
                path = folder->Path(obstacle);
            QVERIFY(Save(after) != author::Storing::Saved);
            QVERIFY2(error.startsWith(folder->Path("")) && !error.contains('\n'),
                     qPrintable(error));
            QCOMPARE(folder->Listing(), listing);
            QVERIFY(Holds("sign.json", before));
        }
    }

    // A disk that is full after so many bytes: before, within and after the data files.
    void fullDiskLosesNothing()
    {
        const Sample before(path, "before");
        Sample after(path, "after");
        after.scene.pages += after.scene.pages + after.scene.pages;
        QCOMPARE(Save(before), author::Storing::Saved);
        const QStringList listing = folder->Listing();
        const int outlines = qMax(after.files.first().size(), after.files.last().size());
        const int largest = scene::SceneToJson(after.scene).size();
        QVERIFY(outlines < largest);
        for (int room : {0, 1, outlines - 1, outlines, largest - 1}) {
            const int storing = End(Begin([&] {
                signal(SIGXFSZ, SIG_IGN);
                const rlimit limit{rlim_t(room), rlim_t(room)};
                setrlimit(RLIMIT_FSIZE, &limit);
                return Save(after);
            }));
            QVERIFY2(storing == int(author::Storing::Failed), qPrintable(QString::number(room)));
            QVERIFY(Holds("sign.json", before));
            folder->Remove(".animtext.lock");
            QCOMPARE(folder->Listing(), listing);
        }
    }

    void whatCannotBeReadIsNotWritten_data()
    {
        // content: of the file before
        // width: of the display; 0 takes the last row's list
        const Table<QString, QByteArray, int, QString> row("file", "content", "width", "complaint");
        row("another ending", "film.gif", "", 100, "ends in .json");
        row("another kind of file", "film.gif", "GIF89a", 100, "ends in .json");
        row("no JSON", "sign.json", "{", 100, "expected valid JSON");
        row("no scene", "sign.json", "{\"a\": 1}", 100, "unknown key");
        row("a display that is too wide", "sign.json", "", 16385, "$.display.width: expected");
        row("a row short", "sign.json", "", 0, "lists.TextWidth: found 3 rows");
    }

    void whatCannotBeReadIsNotWritten()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(int, width);
        QFETCH(QString, complaint);
        path = folder->Write(file, content);
        Sample sample(path, "text");
        if (width == 0)
            sample.Node().lists["TextWidth"].removeLast();
        else
            sample.scene.display.setWidth(width);
        QCOMPARE(Save(sample), author::Storing::Refused);
        QVERIFY2(error.contains(complaint) && error.startsWith(path), qPrintable(error));
        QCOMPARE(folder->Read(file), content);
        QCOMPARE(folder->Listing(), QStringList(file));
    }

    // Existing mistakes do not prevent others from being fixed.
    void oldMistakesMayStay()
    {
        const auto change = [this](const QString& key, int value) {
            return author::ChangeScene(
                path,
                [&](scene::Scene* scene, author::DataFiles*, QString*) {
                    scene->At({}).attributes[key] = value;
                    return true;
                },
                &error);
        };
        Sample sample(path, "text");
        QCOMPARE(Save(sample), author::Storing::Saved);
        sample.Node().attributes["AnimationSpeed"] = 12;
        folder->Write("sign.json", scene::SceneToJson(sample.scene));
        QCOMPARE(change("PlayTimes", 3), author::Storing::Saved);
        QCOMPARE(change("AnimationEffect", -1), author::Storing::Refused);
        QVERIFY(folder->Read("sign.json").contains("\"PlayTimes\": 3"));
    }

    void linksAreFollowed()
    {
        QVERIFY(QDir().mkdir(folder->Path("real")) &&
                QFile::link("real/sign.json", folder->Path("middle.json")) &&
                QFile::link(folder->Path("middle.json"), folder->Path("link.json")));
        const QString real = folder->Path("real/sign.json");
        for (const char* text : {"dangling", "replaced"}) {
            path = real;
            const Sample sample(real, text);
            path = folder->Path("link.json");
            QCOMPARE(Save(sample), author::Storing::Saved);
            scene::Scene read;
            QVERIFY2(scene::ReadScene(path, &read, &error), qPrintable(error));
            QVERIFY(Holds("real/sign.json", sample));
            QCOMPARE(QDir(folder->Path("real")).entryList(QDir::Files | QDir::Hidden).size(), 3);
        }
        QVERIFY(QFileInfo(path).isSymLink());
    }

    void everyWriterIsHeard()
    {
        const int writers = 12;
        QList<pid_t> children;
        for (int i = 0; i < writers; ++i) {
            children.append(Begin([&] {
                Sample own(path, QString(QChar('a' + i)));
                return author::ChangeScene(
                    path,
                    [&](scene::Scene* scene, author::DataFiles* files, QString*) {
                        scene->display = own.scene.display;
                        scene->pages += own.scene.pages;
                        *files = own.files;
                        return true;
                    },
                    &error);
            }));
        }
        for (pid_t child : children)
            QCOMPARE(End(child), int(author::Storing::Saved));
        scene::Scene scene;
        QVERIFY2(scene::ReadScene(path, &scene, &error), qPrintable(error));
        QStringList texts;
        for (const scene::SceneNode* node : scene.Nodes())
            texts.append(node->attributes["Text"].toString());
        texts.sort();
        QCOMPARE(texts.join(""), QString("abcdefghijkl"));
        QCOMPARE(folder->Listing().size(), 2 + writers); // they share their outlines
    }

    // A writer that was killed leaves its lock, or a lock that it has not written anything into.
    void staleLocksAreTakenOver()
    {
        const pid_t dead = Begin([] { return 0; });
        QCOMPARE(End(dead), 0);
        const QByteArray host = QSysInfo::machineHostName().toLocal8Bit();
        folder->Write(".animtext.lock", QByteArray::number(dead) + "\ntst\n" + host + '\n');
        QCOMPARE(Save(Sample(path, "one")), author::Storing::Saved);
        Age(folder->Write(".animtext.lock", ""));
        QCOMPARE(Save(Sample(path, "two")), author::Storing::Saved);
        QVERIFY(!folder->Listing().contains(".animtext.lock"));
    }

    void killedBeforeEachSystemCall()
    {
        const Sample before(path, "before");
        const Sample after(path, "after");
        Ending ending = Ending::Killed;
        int calls = 0;
        for (; ending == Ending::Killed && calls < 10000; ++calls) {
            if (calls > 0 && folder->Listing().contains(".animtext.lock"))
                Age(folder->Path(".animtext.lock"));
            QCOMPARE(Save(before), author::Storing::Saved);
            author::TidyFolder(folder->Path(""), true);
            QCOMPARE(folder->Listing(), before.files.keys() + QStringList("sign.json"));
            ending = RunAndKill(calls, [&] { Save(after); });
            if (ending == Ending::Untraceable)
                QSKIP("processes cannot be traced here");
            QVERIFY(Holds("sign.json", after) ||
                    (ending == Ending::Killed && Holds("sign.json", before)));
        }
        QCOMPARE(ending, Ending::Finished);
        QVERIFY2(calls > 20, qPrintable(QString::number(calls))); // or nothing was written at all
    }

private:
    /** Whether the scene file is that of @p sample and its data files are whole. */
    bool Holds(const QString& name, const Sample& sample) const
    {
        const QString at = name.section('/', 0, -2, QString::SectionIncludeTrailingSep);
        bool holds = folder->Read(name) == scene::SceneToJson(sample.scene);
        for (auto file = sample.files.begin(); file != sample.files.end(); ++file)
            holds = holds && folder->Read(at + file.key()) == file.value();
        return holds;
    }
    author::Storing Save(const Sample& sample)
    {
        const auto change = [&](scene::Scene* scene, author::DataFiles* files, QString*) {
            *scene = sample.scene;
            *files = sample.files;
            return true;
        };
        return author::ChangeScene(path, change, &error);
    }
    static void Age(const QString& file)
    {
        QFile old(file);
        if (!old.open(QIODevice::ReadWrite) ||
            !old.setFileTime(QDateTime::currentDateTime().addSecs(-2),
                             QFileDevice::FileModificationTime))
            qFatal("the test cannot make %s older", qPrintable(file));
    }

    QScopedPointer<TestFolder> folder;
    QString path;
    QString error;
};

QTEST_GUILESS_MAIN(TestSceneStore)
#include "tst_scenestore.moc"
