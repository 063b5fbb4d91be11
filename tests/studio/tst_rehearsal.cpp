#include "studio/model/document.h"
#include "studio/window/display/displayview.h"
#include "studio/worker/rehearsal.h"

#include "scene/catalog.h"
#include "testfolder.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

#include <csignal>

using namespace AnimText;

constexpr int patience = 240000; // milliseconds; the machine may be busy

namespace {

QByteArray Sha1(const QImage& picture)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (int y = 0; y < picture.height(); ++y)
        hash.addData(reinterpret_cast<const char*>(picture.constScanLine(y)), picture.width() * 4);
    return hash.result().toHex();
}

studio::worker::Part PartOf(int page, bool schedule = false)
{
    studio::worker::Part part;
    part.page = page;
    part.schedule = schedule;
    return part;
}

/** The child processes of this test. */
QVector<pid_t> Children()
{
    QVector<pid_t> children;
    const QDir tasks("/proc/self/task");
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile list(tasks.filePath(task + "/children"));
        if (!list.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray& id : list.readAll().split(' ')) {
            if (!id.trimmed().isEmpty())
                children.append(id.toInt());
        }
    }
    return children;
}

} // namespace

class TestRehearsal : public QObject
{
    Q_OBJECT

private:
    TestFolder folder;

    /** A sign of one text that fills the display. */
    static studio::model::Sign OneText(const QString& words, bool scroll, int motion, int hold = 5)
    {
        studio::model::Sign sign;
        sign.display = QSize(96, 32);
        studio::model::SignText text = studio::model::NewText(sign.display, 0);
        text.source.text.text = words;
        text.source.text.runs.first().font.setPixelSize(24);
        text.node.hold = hold;
        scene::SetMotion(&text.node,
                         {scroll ? scene::Mode::Scroll : scene::Mode::Entrance, motion});
        text.node.attributes[scene::MotionOf(text.node).SpeedKey()] = 7;
        text.layoutKey = studio::model::LayoutKey(text);
        text.layout = studio::model::MakeLayout(text);
        studio::model::AddText(&sign, text);
        return sign;
    }
    static bool IsShown(studio::worker::Rehearsal* rehearsal, int tick)
    {
        QSignalSpy shown(rehearsal, &studio::worker::Rehearsal::Shown);
        rehearsal->Look(tick);
        return !shown.isEmpty() || rehearsal->IsCurrent() || shown.wait(patience);
    }

private slots:
    void initTestCase()
    {
        studio::worker::WorkerLink::SetProgram(ANIMTEXT_PROGRAMS "/animtext-studio");
    }
    void picturesEqualTrace_data();
    void picturesEqualTrace();
    void measuresPagesAndEnds();
    void keepsMemoryLimit();
    void survivesWorkerCrash();
    void reportsBrokenPlugin();
    void reportsLostWorkers();
    void makesCallsFail();
};

void TestRehearsal::picturesEqualTrace_data()
{
    QTest::addColumn<bool>("scroll");
    QTest::addColumn<int>("motion");
    for (const scene::Motion& effect : scene::Effects())
        QTest::newRow(effect.name) << false << effect.number;
    for (const scene::Motion& scroll : scene::Scrolls()) {
        // Sideways scrolling: the device moves one picture, so a trace has no frames to compare.
        if (scroll.number >= 2)
            QTest::newRow(scroll.name) << true << scroll.number;
    }
}

void TestRehearsal::picturesEqualTrace()
{
    QFETCH(bool, scroll);
    QFETCH(int, motion);
    const studio::model::Sign sign = OneText("Züge ab", scroll, motion);
    QString error;
    QVERIFY2(studio::model::SaveSign(sign, folder.Path("traced.json"), QByteArray(), &error),
             qPrintable(error));
    const Outcome trace = folder.Shell("animtext trace traced.json --ticks 40");
    QVERIFY2(trace.status == 0, trace.errors);

    studio::worker::Rehearsal rehearsal((QString()));
    studio::window::display::DisplayView view;
    connect(&rehearsal, &studio::worker::Rehearsal::Shown, &view, &live::PictureView::SetPicture);
    rehearsal.SetSign(sign, PartOf(0));
    QVector<QByteArray> told;
    for (const QByteArray& line : trace.out.split('\n')) {
        if (!line.isEmpty())
            told.append(QJsonDocument::fromJson(line).object().value("sha1").toString().toLatin1());
    }
    QCOMPARE(told.size(), 41);
    for (int tick : {0, 7, 40, 12, 13, 3}) { // also backwards
        QVERIFY2(IsShown(&rehearsal, tick), qPrintable(QString::number(tick)));
        QCOMPARE(Sha1(view.Picture()), told.at(tick));
    }
}

void TestRehearsal::measuresPagesAndEnds()
{
    studio::model::Sign sign = OneText("WWWWWWW", false, 4);
    sign.texts.first().node.attributes["PlayTimes"] = 2;
    studio::worker::Rehearsal rehearsal((QString()));
    QSignalSpy measured(&rehearsal, &studio::worker::Rehearsal::TimingChanged);
    rehearsal.SetSign(sign, PartOf(0));
    QVERIFY(measured.wait(patience));
    const studio::worker::TextTime text = rehearsal.GetTiming().texts.first();
    QString error;
    QVERIFY(studio::model::SaveSign(sign, folder.Path("timed.json"), QByteArray(), &error));
    const Outcome duration = folder.Shell("animtext duration timed.json --simulate --json");
    const QJsonObject told = QJsonDocument::fromJson(duration.out).object();
    QCOMPARE(text.planned, qint64(told.value("duration").toDouble()));
    QCOMPARE(text.actual,
             qint64(told.value("simulated").toObject().value("finishedMs").toDouble()));
    QCOMPARE(text.pages.size(), 2 * sign.texts.first().layout->pages);
    QSet<int> pictures;
    for (const QByteArray& line :
         folder.Shell("animtext trace timed.json -n 200").out.split('\n')) {
        const QJsonObject tick = QJsonDocument::fromJson(line).object();
        if (tick.value("swap").toBool())
            pictures.insert(tick.value("tick").toInt());
    }
    int end = 0;
    for (const timing::PageTime& page : text.pages) {
        QCOMPARE(page.begin, end);
        QVERIFY(page.hold > page.begin);
        QVERIFY(pictures.contains(page.begin) && pictures.contains(page.hold - 1));
        for (int tick = page.hold; tick < page.end; ++tick)
            QVERIFY(!pictures.contains(tick));
        end = page.end;
    }
    QCOMPARE(qint64(end) * player::tickLength, text.actual);
    // With the schedule, a text is stopped after its planned time.
    rehearsal.SetSign(sign, PartOf(-1, true));
    QVERIFY(measured.wait(patience));
    QCOMPARE(rehearsal.GetTiming().texts.first().until, text.planned);
    // So long that the planned time overflows; there must be ticks to show anyway.
    sign.texts.first().node.attributes["PlayTimes"] = 1000000;
    rehearsal.SetSign(sign, PartOf(0));
    QVERIFY(measured.wait(patience));
    QVERIFY(rehearsal.GetTiming().isCut && rehearsal.GetTiming().Ticks() > 10000);
}

void TestRehearsal::keepsMemoryLimit()
{
    const int each = 96 * 32 * 4;
    studio::worker::Rehearsal rehearsal(QString(), 10 * each);
    rehearsal.SetSign(OneText("Moving on", false, 6, 0), PartOf(0));
    for (int tick : {60, 59, 0, 30, 60}) {
        QVERIFY(IsShown(&rehearsal, tick));
        QVERIFY(rehearsal.Has(tick));
        QVERIFY(rehearsal.KeptBytes() <= 10 * each);
    }
}

void TestRehearsal::survivesWorkerCrash()
{
    studio::worker::Rehearsal rehearsal((QString()));
    QSignalSpy trouble(&rehearsal, &studio::worker::Rehearsal::Trouble);
    rehearsal.SetSign(OneText("Again", false, 5), PartOf(0));
    QVERIFY(IsShown(&rehearsal, 5));
    const QByteArray before = Sha1(rehearsal.Picture(5));
    const QVector<pid_t> workers = Children();
    QVERIFY(!workers.isEmpty());
    for (pid_t worker : workers)
        QCOMPARE(kill(worker, SIGKILL), 0);
    rehearsal.SetSign(OneText("Again", false, 5), PartOf(0));
    QTRY_VERIFY_WITH_TIMEOUT(rehearsal.IsCurrent(), patience);
    QCOMPARE(Sha1(rehearsal.Picture(5)), before);
    for (const QList<QVariant>& told : trouble)
        QCOMPARE(told.first().toString(), QString());
}

void TestRehearsal::reportsBrokenPlugin()
{
    studio::worker::Rehearsal rehearsal(folder.Write("noplugin.so", "no library"));
    QSignalSpy trouble(&rehearsal, &studio::worker::Rehearsal::Trouble);
    QVERIFY(trouble.wait(patience));
    QVERIFY(trouble.first().first().toString().contains("noplugin.so"));
    rehearsal.SetSign(OneText("Nothing", false, 4), PartOf(0));
    QTRY_VERIFY_WITH_TIMEOUT(trouble.size() >= 2, patience);
    QVERIFY(trouble.last().first().toString().contains("noplugin.so"));
    QVERIFY(!rehearsal.IsCurrent());
}

/** Both end twice. What they say of an earlier order does not count as an answer. */
void TestRehearsal::reportsLostWorkers()
{
    studio::worker::Answer late;
    late.kind = studio::worker::Answer::Idle;
    const QString answer = folder.Write("late", studio::worker::Packed(late));
    const QString script =
        folder.Write("worker", "#!/bin/sh\nhead -c 1 >/dev/null\ncat '" + answer.toUtf8() + "'\n");
    QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner);
    studio::worker::WorkerLink::SetProgram(script);
    studio::worker::Rehearsal rehearsal((QString()));
    QSignalSpy trouble(&rehearsal, &studio::worker::Rehearsal::Trouble);
    rehearsal.SetSign(OneText("Lost", false, 4), PartOf(0));
    QTRY_COMPARE_WITH_TIMEOUT(trouble.size(), 2, patience);
    for (const QList<QVariant>& told : trouble)
        QVERIFY(told.first().toString().contains("ended unexpectedly"));
    initTestCase();
}

void TestRehearsal::makesCallsFail()
{
    studio::worker::Rehearsal rehearsal((QString()));
    studio::worker::Part part = PartOf(0);
    part.calls = true;
    part.faults = {{Torv::OpSwapPicImageLayerPtr, 2}};
    rehearsal.SetSign(OneText("Calls", false, 4), part);
    QVERIFY(IsShown(&rehearsal, 8));
    QVERIFY(IsShown(&rehearsal, 0));
    QTRY_VERIFY_WITH_TIMEOUT(rehearsal.Has(8) && rehearsal.Has(7) && rehearsal.Has(1), patience);
    QVERIFY(rehearsal.Calls(0).contains("CreatePictureSession"));
    QByteArray all;
    for (int tick = 0; tick <= 8; ++tick)
        all += rehearsal.Calls(tick);
    QVERIFY2(all.count("fault") == 1, all);
}

QTEST_MAIN(TestRehearsal)
#include "tst_rehearsal.moc"
