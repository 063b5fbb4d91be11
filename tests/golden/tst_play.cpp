// Plays the texts of the files beside this one and compares what they show, tick by tick. With
// --update the files are written again; look at their difference before you keep it.
//
// "== TITLE: WORDS" begins a group of plays and holds what they have in common; "> WORDS # REMARK"
// is one of them, whose words come first. The lines that follow are the outcome of all plays above
// them, up to the outcome before. A group without ">" is one play.
#include "script.h"

#include <QDir>

namespace {

struct Play
{
    QString line;   ///< "> WORDS # REMARK", or empty
    QString script; ///< all of its words
    QStringList outcome;
};

struct Group
{
    QString heading;
    QList<Play> plays;
};

struct PlayFile
{
    QString path;
    QStringList remarks; ///< above the first group
    QList<Group> groups;
};

} // namespace

Q_DECLARE_METATYPE(Play)

namespace {

PlayFile Read(const QString& path)
{
    PlayFile content{path, {}, {}};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    int open = 0; // plays without their outcome, at the end of the group
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
        if (line.startsWith('#')) {
            content.remarks.append(line);
        } else if (line.startsWith("==")) {
            content.groups.append({line, {{"", line.section(": ", 1), {}}}});
            open = 1;
        } else if (line.startsWith('>')) {
            Group& group = content.groups.last();
            if (group.plays.first().line.isEmpty()) {
                group.plays.clear();
                open = 0;
            }
            if (!group.plays.isEmpty() && !group.plays.last().outcome.isEmpty())
                open = 0;
            group.plays.append(
                {line, line.mid(2).section(" #", 0, 0) + ' ' + group.heading.section(": ", 1), {}});
            ++open;
        } else {
            QList<Play>& plays = content.groups.last().plays;
            for (int i = plays.size() - open; i < plays.size(); ++i)
                plays[i].outcome.append(line);
        }
    }
    return content;
}

/** Equal except for the last digit of fractions, which other processors round differently. */
bool Same(const QString& actual, const QString& expected)
{
    static const QRegularExpression apart("[ ,|]");
    const QStringList a = actual.split(apart), e = expected.split(apart);
    bool same = a.size() == e.size();
    for (int i = 0; same && i < a.size(); ++i)
        same = a[i] == e[i] ||
               ((a[i] + e[i]).contains('.') && std::abs(a[i].toDouble() - e[i].toDouble()) < 0.015);
    return same;
}

QList<PlayFile> Files()
{
    QList<PlayFile> files;
    for (const QString& name : QDir(GOLDEN_FOLDER).entryList({"*.play"}, QDir::Files, QDir::Name))
        files.append(Read(QDir(GOLDEN_FOLDER).filePath(name)));
    return files;
}

} // namespace

class TestPlay : public QObject
{
    Q_OBJECT

private slots:
    void plays_data()
    {
        QTest::addColumn<Play>("play");
        for (const PlayFile& file : Files())
            for (const Group& group : file.groups)
                for (const Play& play : group.plays)
                    QTest::newRow(qPrintable(QFileInfo(file.path).baseName() + ": " +
                                             group.heading.mid(3).section(": ", 0, 0) +
                                             play.line.mid(1)))
                        << play;
    }

    void plays()
    {
        QFETCH(Play, play);
        const QStringList actual = Script(play.script).Lines();
        for (int i = 0; i < qMax(actual.size(), play.outcome.size()); ++i) {
            const QString is = actual.value(i), expected = play.outcome.value(i);
            QVERIFY2(
                i < actual.size() && i < play.outcome.size() && Same(is, expected),
                qPrintable(
                    QString("\n> %1\nexpected %2\nactual   %3").arg(play.script, expected, is)));
        }
    }
};

/** Writes what is seen now below every play, or below several with the same outcome. */
static void Update()
{
    for (const PlayFile& file : Files()) {
        QStringList text = file.remarks;
        for (const Group& group : file.groups) {
            text << "" << group.heading;
            QStringList outcome;
            for (const Play& play : group.plays) {
                const QStringList now = Script(play.script).Lines();
                if (now != outcome)
                    text += outcome;
                outcome = now;
                if (!play.line.isEmpty())
                    text += play.line;
            }
            text += outcome;
        }
        WriteFile(file.path, text.join('\n').toUtf8() + '\n');
    }
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setEventDispatcher(new AnimText::player::VirtualDispatcher);
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
