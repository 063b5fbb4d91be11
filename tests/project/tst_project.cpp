// Rules of the project that no compiler knows: who includes whom, which namespace a file is in,
// what Qt 4.8 does not have, and the build that integrators use.
#include "table.h"

#include <QDirIterator>

namespace {

const QString root = PROJECT_ROOT;

struct Source
{
    QString path; // from the project's root
    QString text;
};

QVector<Source> Sources(const QStringList& folders)
{
    QVector<Source> sources;
    for (const QString& folder : folders) {
        QDirIterator files(root + "/" + folder, {"*.h", "*.cpp"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                qFatal("cannot read %s", qPrintable(file.fileName()));
            sources.append({QDir(root).relativeFilePath(file.fileName()), file.readAll()});
        }
    }
    return sources;
}

QString Place(const Source& source, int offset)
{
    return source.path + ":" + QString::number(source.text.left(offset).count('\n') + 1);
}

// Comments and texts left out, lines kept.
QString CodeOf(const QString& text)
{
    static const QRegularExpression noCode("//[^\\n]*|/\\*.*?\\*/|\"(?:[^\"\\\\\\n]|\\\\.)*\"",
                                           QRegularExpression::DotMatchesEverythingOption);
    QString code;
    int end = 0;
    for (auto it = noCode.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        code += text.mid(end, match.capturedStart() - end) +
                QString(match.captured().count('\n'), '\n');
        end = match.capturedEnd();
    }
    return code + text.mid(end);
}

// The file of this project that an include names; empty when it is none.
QString Included(const QString& from, const QString& name)
{
    for (const QString& folder : {QFileInfo(from).path(), QString("src"), QString("platform/host"),
                                  QString("platform/device"), QString("tools")}) {
        const QString path = QDir::cleanPath(root + "/" + folder + "/" + name);
        if (QFile::exists(path))
            return QDir(root).relativeFilePath(path);
    }
    return QString();
}

} // namespace

class TestProject : public QObject
{
    Q_OBJECT

private slots:
    void includesFollowTheRule_data()
    {
        // own: files of the project that may be included
        // other: anything else that may be
        const Table<QString, QString, QString> row("folder", "own", "other");
        const QString any = ".*";
        // The standard's headers and Qt's: no others are at hand where the plugin is built.
        const QString standardAndQt =
            "[a-z_]+|c?[a-z]+(\\.h)?|Q[A-Za-z0-9]+|Qt[A-Z][A-Za-z]+/[A-Za-z]+";
        row("src", "src", "src/.*|platform/host/.*|platform/device/torvsdk\\.h", standardAndQt);
        // Rooms of the plugin that know nothing of those above them.
        for (const char* room : {"paint", "text"})
            row(room, QString("src/%1").arg(room), QString("src/%1/.*").arg(room), standardAndQt);
        row("device", "src/device", "src/device/.*|platform/device/torvsdk\\.h", standardAndQt);
        row("node", "src/node", "src/(device|node|text)/.*|platform/.*", standardAndQt);
        row("engine", "src/engine", "src/(device|engine|node|paint|text)/.*|platform/.*",
            standardAndQt);
        row("effects", "src/effects", "src/(effects|engine|node|paint)/.*|platform/.*",
            standardAndQt);
        row("platform", "platform", "platform/.*", any);
        row("platform/device", "platform/device", "platform/device/.*", any);
        // From the ground up: a room may know those before it.
        const QString ground = "platform/.*|src/text/.*";
        QStringList known;
        for (const char* room :
             {"files", "scene", "validate", "layout", "author", "cli", "player", "timing", "film",
              "live", "lights", "compare", "gallery", "animtext"}) {
            known.append(room);
            const QString name = QString("tools/%1").arg(room);
            row(name, name, QString("tools/(%1)/.*|%2").arg(known.join('|'), ground), any);
        }
        known.removeLast(); // the other program
        const QString below = QString("tools/(%1)/.*|%2").arg(known.join('|'), ground);
        known.clear();
        for (const char* room :
             {"model", "worker", "window/basics", "window/display", "window/motion", "window/text",
              "window/time", "window/form", "window/findings", "window/shell"}) {
            known.append(room);
            const QString name = QString("tools/studio/%1").arg(room);
            row(name, name, QString("tools/studio/(%1)/.*|%2").arg(known.join('|'), below), any);
        }
    }

    void includesFollowTheRule()
    {
        QFETCH(QString, folder);
        QFETCH(QString, own);
        QFETCH(QString, other);
        const QRegularExpression include("^[ \\t]*#[ \\t]*include[ \\t]*[\"<]([^\">]+)[\">]",
                                         QRegularExpression::MultilineOption);
        const QVector<Source> sources = Sources({folder});
        int seen = 0;
        QStringList wrong;
        for (const Source& source : sources) {
            for (auto it = include.globalMatch(source.text); it.hasNext(); ++seen) {
                const QRegularExpressionMatch match = it.next();
                const QString name = match.captured(1);
                const QString file = Included(source.path, name);
                const QString allowed =
                    QRegularExpression::anchoredPattern(file.isEmpty() ? other : own);
                if (!QRegularExpression(allowed).match(file.isEmpty() ? name : file).hasMatch())
                    wrong.append(Place(source, match.capturedStart()) + " includes " + name);
            }
        }
        QVERIFY(seen > 0);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
    }

    void namespacesFollowFolders()
    {
        const QRegularExpression opens("^namespace (AnimText[\\w:]*) \\{\n([^\n]*)",
                                       QRegularExpression::MultilineOption);
        const QRegularExpression declares("^(class|struct) \\w+;$");
        int seen = 0;
        QStringList wrong;
        for (const Source& source : Sources({"tools"})) {
            const QString folder = "AnimText" + QFileInfo(source.path).path().mid(strlen("tools"));
            for (auto it = opens.globalMatch(source.text); it.hasNext(); ++seen) {
                const QRegularExpressionMatch match = it.next();
                // What another folder defines may be declared in its namespace.
                if (match.captured(1) != QString(folder).replace("/", "::") &&
                    !declares.match(match.captured(2)).hasMatch())
                    wrong.append(Place(source, match.capturedStart()) + " opens " +
                                 match.captured(1));
            }
        }
        QVERIFY(seen > 0);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
    }

    // Who ports the plugin reads the table and no more.
    void meetingPlacesAreListed()
    {
        const QRegularExpression meets("#include <(h[a-z]+|drawneonbg|i[a-z]+|torvsdk)\\.h>|"
                                       "\\b(Create|Add|Remove|Free)PictureSession|"
                                       "PicImageLayerPtr|GeteffectDuration|GetFirstFile");
        QFile document(root + "/docs/architecture.md");
        QVERIFY(document.open(QIODevice::ReadOnly));
        const QString text = QString(document.readAll()).section("## Where the plugin meets", 1);
        QStringList listed, meeting;
        for (auto it =
                 QRegularExpression("`([a-z]+/[a-z]+)\\.h`, `\\.cpp`|`([a-z]+/[a-z]+\\.(h|cpp))`")
                     .globalMatch(text.section("\n## ", 0, 0));
             it.hasNext();) {
            const QRegularExpressionMatch match = it.next();
            if (match.captured(1).isEmpty())
                listed.append("src/" + match.captured(2));
            else
                listed << "src/" + match.captured(1) + ".h"
                       << "src/" + match.captured(1) + ".cpp";
        }
        for (const Source& source : Sources({"src"}))
            if (CodeOf(source.text).contains(meets))
                meeting.append(source.path);
        listed.sort();
        meeting.sort();
        QCOMPARE(listed, meeting);
    }

    void nothingIsNewerThanQt4_data()
    {
        const Table<QString> row("pattern");
        row("literals", "\\bQ(String|ByteArray)Literal\\b");
        row("macros", "\\bQ_(DECL_OVERRIDE|DECL_FINAL|NULLPTR|FALLTHROUGH|GADGET|ENUM|"
                      "NAMESPACE|REVISION)\\b");
        row("functions", "\\bq(Overload|ConstOverload|AsConst|Info|"
                         "InstallMessageHandler)\\b");
        row("classes", "\\bQ(SignalBlocker|CommandLineParser|Json[A-Z][a-z]+|"
                       "MimeDatabase|RegularExpression|StandardPaths|LoggingCategory|"
                       "MessageLogContext|Collator|TimeZone|SaveFile|TemporaryDir|"
                       "LockFile|StringView|RandomGenerator|Window|Screen|"
                       "GuiApplication|UrlQuery|VersionNumber|DeadlineTimer|"
                       "ScopeGuard)\\b");
        row("connections to functions", "connect\\s*\\([^;]*&\\s*[A-Za-z_]+\\s*::");
        row("connections to lambdas", "connect\\s*\\([^;{]*,\\s*\\[[^;]*\\]\\s*[({]");
        row("headers", "#include\\s*<QtWidgets|#include\\s*<QtConcurrent/");
        row("members", "\\bQt::SkipEmptyParts\\b|\\.(chopped|constKeyValueBegin|"
                       "keyValueBegin)\\(");
    }

    void nothingIsNewerThanQt4()
    {
        QFETCH(QString, pattern);
        const QRegularExpression word(pattern, QRegularExpression::DotMatchesEverythingOption);
        QVERIFY(word.isValid());
        QStringList wrong;
        for (Source source : Sources({"src", "platform"})) {
            source.text = CodeOf(source.text);
            for (auto it = word.globalMatch(source.text); it.hasNext();) {
                const QRegularExpressionMatch match = it.next();
                wrong.append(Place(source, match.capturedStart()) + ": " + match.captured());
            }
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
    }

    void everySourceIsListed()
    {
        QFile file(root + "/src/sources.pri");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList lines = QString(file.readAll()).split('\n');
        QStringList listed, present;
        for (const QString& line : lines)
            if (line.contains("$$PWD/"))
                listed.append("src/" + line.section("$$PWD/", 1).section(' ', 0, 0));
        for (const Source& source : Sources({"src"}))
            present.append(source.path);
        listed.sort();
        present.sort();
        QCOMPARE(listed, present);
    }

    void compilesAgainstHosts_data()
    {
        const Table<QString, QString> row("functions", "instead");
        // Those that the plugin overrides keep the host's signature, whatever the others do.
        const QString called = "^(    (?!static|explicit)(?:[\\w<>,:]+[ &*]+)+"
                               "(?!Type|Duration)\\w+\\([^()]*\\))( override)?;";
        row("const everywhere", called, "\\1 const\\2;");
        row("const nowhere", "\\) const\\b", ")");
    }

    // Every host declares its own classes. All of src/ in one go, for most of the time is Qt's
    // headers'.
    void compilesAgainstHosts()
    {
        QFETCH(QString, functions);
        QFETCH(QString, instead);
        const QTemporaryDir folder;
        const auto write = [&folder](const QString& name, const QString& text) {
            QFile file(folder.filePath(name));
            return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0;
        };
        const QRegularExpression pattern(functions, QRegularExpression::MultilineOption);
        int changed = 0;
        for (Source header : Sources({"platform/host"})) {
            const QString name = QFileInfo(header.path).fileName();
            if (name != "inodeplugin.h" && name != "icontentrender.h") {
                changed += header.text.count(pattern);
                header.text.replace(pattern, instead);
            }
            QVERIFY(!name.endsWith(".h") || write(name, header.text));
        }
        QVERIFY2(changed >= 10, qPrintable(QString::number(changed)));
        QString all;
        for (const Source& source : Sources({"src"}))
            if (source.path.endsWith(".cpp"))
                all += "#include \"" + source.path.section('/', 1) + "\"\n";
        QVERIFY(write("all.cpp", all));

        QStringList arguments{QT_VERSION < 0x060000 ? "-std=c++11" : "-std=c++17",
                              "-fPIC",
                              "-fsyntax-only",
                              "-Wall",
                              "-Wextra",
                              "-Werror",
                              "-DQT_NO_DEPRECATED_WARNINGS",
                              "-I" + folder.path()};
        // The compiler's own folder, which Qt 6 names too, has to come after the C++ library's.
        for (const QString& include : QString(PLUGIN_INCLUDES).split('|'))
            if (include != "/usr/include")
                arguments << (include.startsWith(root) ? "-I" : "-isystem") << include;
        QProcess compiler;
        compiler.start(CXX_COMPILER, arguments << folder.filePath("all.cpp"));
        compiler.waitForFinished(-1);
        QVERIFY2(compiler.exitCode() == 0, compiler.readAllStandardError());
    }

    // The plugin alone, as an embedded toolchain builds it, in a checkout with a difficult name.
    // From elsewhere qmake itself gets no further than blanks.
    void qmakeBuildsThePlugin()
    {
        const QTemporaryDir folder;
        const QString checkout = folder.filePath("it's a \"sign\" für uns");
        const QString build = checkout + "/build plugin";
        QVERIFY(QDir().mkpath(build));
        const auto run = [&build](const QString& program, const QStringList& arguments) {
            QProcess process;
            process.setWorkingDirectory(build);
            process.setProcessChannelMode(QProcess::MergedChannels);
            process.start(program, arguments);
            if (!process.waitForStarted())
                return qMakePair(-1, program + " cannot be started");
            process.waitForFinished(-1);
            return qMakePair(process.exitCode(), QString(process.readAll()));
        };
        auto answer = run("cp", {"-R", root + "/src", root + "/platform", checkout});
        QVERIFY2(answer.first == 0, qPrintable(answer.second));
        answer = run(QMAKE_PROGRAM, {"../src/animationtext.pro"});
        QVERIFY2(answer.first == 0, qPrintable(answer.second));
        answer = run("make", {"-j2"});
        QVERIFY2(answer.first == 0, qPrintable(answer.second));
        QVERIFY2(!answer.second.contains("warning:"), qPrintable(answer.second));

        answer = run("nm", {"-D", "--defined-only", "libanimationtext.so"});
        QVERIFY2(answer.first == 0, qPrintable(answer.second));
        for (const char* entry : {"qt_plugin_instance", "qt_plugin_query_verification_data"})
            QVERIFY2(answer.second.contains(entry), qPrintable(answer.second));
    }
};

QTEST_GUILESS_MAIN(TestProject)
#include "tst_project.moc"
