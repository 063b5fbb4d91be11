// What texts show, tick by tick, as the files beside this one tell it. With --update the files are
// written anew; look at their difference before you keep it.
#include "script.h"

#include <QDir>

namespace {

/** One play in a file: "== name", its scripts after "> ", and what is to be seen. */
struct Scenario
{
    QString name, script;
    QStringList expected;
};

} // namespace

Q_DECLARE_METATYPE(Scenario)

namespace {

QList<Scenario> Read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    QList<Scenario> scenarios;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        if (line.startsWith("== "))
            scenarios.append({line.mid(3), {}, {}});
        else if (line.startsWith("> "))
            scenarios.last().script += line.mid(2) + ' ';
        else if (!line.isEmpty() && !line.startsWith('#'))
            scenarios.last().expected.append(line);
    }
    return scenarios;
}

/** Equal but for the last digit of what is no whole number: another processor rounds otherwise. */
bool Same(const QString& actual, const QString& expected)
{
    static const QRegularExpression apart("[ ,;=\\[\\]]");
    const QStringList a = actual.split(apart), e = expected.split(apart);
    bool same = a.size() == e.size();
    for (int i = 0; same && i < a.size(); ++i)
        same = a[i] == e[i] ||
               ((a[i] + e[i]).contains('.') && std::abs(a[i].toDouble() - e[i].toDouble()) < 0.015);
    return same;
}

QStringList Files()
{
    QStringList files;
    for (const QString& name : QDir(GOLDEN_FOLDER).entryList({"*.play"}, QDir::Files, QDir::Name))
        files.append(QDir(GOLDEN_FOLDER).filePath(name));
    return files;
}

} // namespace

class TestPlay : public QObject
{
    Q_OBJECT

private slots:
    void plays_data()
    {
        QTest::addColumn<Scenario>("scenario");
        for (const QString& path : Files())
            for (const Scenario& scenario : Read(path))
                QTest::newRow(qPrintable(QFileInfo(path).baseName() + ": " + scenario.name))
                    << scenario;
    }

    void plays()
    {
        QFETCH(Scenario, scenario);
        const QStringList actual = Script(scenario.script).Lines();
        for (int i = 0; i < qMax(actual.size(), scenario.expected.size()); ++i) {
            const QString is = actual.value(i), expected = scenario.expected.value(i);
            QVERIFY2(i < actual.size() && i < scenario.expected.size() && Same(is, expected),
                     qPrintable(QString("\n> %1\nexpected %2\nactual   %3")
                                    .arg(scenario.script, expected, is)));
        }
    }
};

/** Writes what is seen now beneath every script. */
static void Update()
{
    for (const QString& path : Files()) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(path));
        QByteArray text;
        QString script;
        const auto play = [&] {
            for (const QString& line : script.isEmpty() ? QStringList() : Script(script).Lines())
                text += line.toUtf8() + '\n';
            script.clear();
        };
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith("> "))
                script += QString::fromUtf8(line.mid(2)) + ' ';
            else if (line.startsWith("==") || line.startsWith('#'))
                play();
            if (line.startsWith("> ") || line.startsWith("==") || line.startsWith('#'))
                text += (line.startsWith("==") && !text.isEmpty() ? "\n" : "") + line + '\n';
        }
        play();
        file.close();
        WriteFile(path, text);
    }
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setEventDispatcher(new AnimText::VirtualDispatcher);
    QGuiApplication application(argc, argv);
    Torv::GuardShownBuffers(true); // a painter that writes into what is shown stops the process
    if (application.arguments().contains("--update")) {
        Update();
        return 0;
    }
    TestPlay test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_play.moc"
