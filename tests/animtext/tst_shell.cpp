// The program as its user meets it: what is typed, printed and left behind, as the files beside
// this one tell it. With --update they are written anew; look at their difference before you keep
// it.
//
// "== NAME" begins a shell in a folder of its own, $PWD, with the scenes that Samples makes. "$
// LINE" is typed there; below it stands what is printed: standard error after "! ", a status other
// than 0 in brackets. "..." stands for anything. What is refused must leave the folder as it was.
// Lines above the first "==" are typed in every shell of the file.
#include "testscene.h"

#include <QRegularExpression>
#include <QtTest>

using namespace AnimText;

namespace {

struct Step
{
    QString line;
    QString printed;
};

struct Session
{
    QString name;
    QString remarks; ///< what stands above the first line
    QList<Step> steps;
};

/** The first session has no name: it is what stands above them all. */
QList<Session> Read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    QList<Session> sessions{Session()};
    for (const QString& line : QString::fromUtf8(file.readAll().trimmed()).split('\n')) {
        if (line.startsWith("== "))
            sessions.append({line.mid(3), {}, {}});
        else if (line.startsWith("$ "))
            sessions.last().steps.append({line.mid(2), {}});
        else if (sessions.last().steps.isEmpty())
            sessions.last().remarks += line + '\n';
        else
            sessions.last().steps.last().printed += line + '\n';
    }
    return sessions;
}

QString only = "*"; ///< the files that are run, without their ending

QStringList Files()
{
    QStringList files;
    for (const QString& name : QDir(SHELL_FOLDER).entryList({only + ".shell"}, QDir::Files))
        files.append(QDir(SHELL_FOLDER).filePath(name));
    return files;
}

class Samples : public TestScenes
{
public:
    Samples()
    {
        Save(Of({Node({})}), "one.json");                  // 4 pictures
        Save(Of({Node({"abcdef", 9, 9, 3})}), "two.json"); // of two pages
        Save(Of({Node({"abc", 4, 9, 3})}), "held.json");   // for 300 ms
        Save(Of({Node({"abc", 4, 9, 0, 1000000})}), "endless.json");
        Write("bad.json", R"({"scene": 1, "display": {"width": 8, "height": 8}, "pages": 1})");
        Save(Of({Node({"ab", 4, 5, 20, 1, {100, 20}, 10})}), "ab.json"); // that just fits
        QPainterPath box, far;
        box.addRect(0, -10, 8, 10);
        far.addRect(0, 0, 2e6, 1);
        Write("one.path", PathFile({box}));
        Write("three.path", PathFile({box, box, box}));
        Write("far.path", PathFile({box, far}));
        Write("gap.path", PathFile({box, QPainterPath()}));
        Write("torn", PathFile({box, box}).left(60));
    }
};

/** What the steps of @p session print after those of @p start. */
QStringList Printed(const Session& start, const Session& session)
{
    const Samples folder;
    const TestFolder output;
    QString script = "QT=" + QString::number(QT_VERSION_MAJOR) +
                     "\n"
                     "state() { find . -type f -exec cksum {} + | sort; }\n"
                     "VERSION=" ANIMTEXT_VERSION "\n"
                     "LIBRARIES=" +
                     output.Path("libraries") + '\n';
    // By a way without blanks, which LD_PRELOAD cannot stand.
    QFile::link(ANIMTEXT_LIBRARIES, output.Path("libraries"));
    for (const Step& step : start.steps)
        script += step.line + '\n';
    for (int i = 0; i < session.steps.size(); ++i)
        script += QString("before=$(state)\n"
                          "{ %1\n"
                          "} >'%2.out' 2>'%2.errors'; status=$?\n"
                          "[ $status = 0 ] || echo [$status] >'%2.status'\n"
                          "[ $status = 0 ] || [ \"$before\" = \"$(state)\" ] ||"
                          " echo has changed something >>'%2.status'\n")
                      .arg(session.steps[i].line, output.Path(QString::number(i)));
    folder.Shell(script);
    QStringList printed;
    for (int i = 0; i < session.steps.size(); ++i) {
        QString text = QString::fromUtf8(output.Read(QString("%1.out").arg(i)));
        if (!text.isEmpty() && !text.endsWith('\n'))
            text += '\n';
        const QString errors = QString::fromUtf8(output.Read(QString("%1.errors").arg(i)));
        for (const QString& line : errors.split('\n', Qt::SkipEmptyParts))
            text += "! " + line + '\n';
        text.replace(QDir::cleanPath(folder.Path("")), "$PWD");
        printed.append(text + output.Read(QString("%1.status").arg(i)));
    }
    return printed;
}

bool Matches(const QString& printed, const QString& expected)
{
    QString pattern = QRegularExpression::escape(expected.trimmed());
    pattern.replace("\\.\\.\\.", ".*");
    return QRegularExpression("\\A" + pattern + "\\z",
                              QRegularExpression::DotMatchesEverythingOption)
        .match(printed.trimmed())
        .hasMatch();
}

/** Writes what is printed now where it does not match. */
void Update()
{
    for (const QString& path : Files()) {
        QString text;
        const QList<Session> sessions = Read(path);
        for (const Session& session : sessions) {
            const bool isStart = session.name.isEmpty();
            text += isStart ? "" : "== " + session.name + '\n';
            text += session.remarks;
            const QStringList printed = Printed(isStart ? Session() : sessions[0], session);
            for (int i = 0; i < printed.size(); ++i) {
                const Step& step = session.steps[i];
                text += "$ " + step.line + '\n';
                text += Matches(printed[i], step.printed)
                            ? step.printed
                            : printed[i] + (i + 1 == printed.size() ? "\n" : "");
            }
        }
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            qFatal("cannot write %s", qPrintable(path));
    }
}

} // namespace

Q_DECLARE_METATYPE(Session)

class TestShell : public QObject
{
    Q_OBJECT

private slots:
    void prints_data()
    {
        QTest::addColumn<Session>("start");
        QTest::addColumn<Session>("session");
        for (const QString& path : Files()) {
            const QList<Session> sessions = Read(path);
            for (const Session& session : sessions.mid(1))
                QTest::newRow(qPrintable(QFileInfo(path).baseName() + ": " + session.name))
                    << sessions.first() << session;
        }
    }

    void prints()
    {
        QFETCH(Session, start);
        QFETCH(Session, session);
        const QStringList printed = Printed(start, session);
        QString differences;
        for (int i = 0; i < printed.size(); ++i)
            if (!Matches(printed[i], session.steps[i].printed))
                differences +=
                    QString("\n$ %1\nexpected\n%2but printed\n%3")
                        .arg(session.steps[i].line, session.steps[i].printed, printed[i]);
        QVERIFY2(differences.isEmpty(), qPrintable(differences));
    }
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QStringList words = application.arguments();
    if (words.size() > 1 && !words[1].startsWith('-'))
        only = words.takeAt(1);
    if (words.removeOne("--update")) {
        Update();
        return 0;
    }
    TestShell test;
    return QTest::qExec(&test, words);
}

#include "tst_shell.moc"
