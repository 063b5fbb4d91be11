// Hosts call in any order: random walks over everything that a host can do to nodes and renderers,
// on two displays, after which nothing is left and no call was wrong but by the host's own doing.
#include "samples.h"
#include "testsign.h"

#include <hpluginmanager.h>

#include <QFile>
#include <QPointer>

#include <random>

namespace {

constexpr int places = 4; // renderers at once
constexpr int stepsOfAWalk = 500;

/** A node and the renderer that plays it, as far as they are there. */
struct Place
{
    QPointer<Lw::HNeonNodeBase> node;
    std::unique_ptr<Lw::IContentRender> render;
    unsigned int handle = 0; // of the last start
};

struct Attribute
{
    const char* key;
    QVector<int> values;
};

// Flags are 0 or 1 here: with others, the plugin stacks layers that were never made.
const Attribute attributes[] = {
    {"EffectType", {0, 0, 0, 1, 1, 2, -1}},
    {"AnimationEffect", {0, 1, 2, 4, 8, 9, 12, 14, 17, 18, 19, 20, 24, 25, 28, 29, 30, -7}},
    {"ContinueStyle", {0, 1, 2, 3, 4, -1}},
    {"AnimationSpeed", {0, 3, 5, 9, 10, 40, -5}},
    {"ContinueSpeed", {0, 3, 5, 9, 10, 40, -5}},
    {"PlayTimes", {0, 1, 2, 1000, -1}},
    {"CheckNeonBg", {0, 1}},
    {"CheckDazzle", {0, 1}},
    {"CheckColorGradient", {0, 1, 2}},
    {"ColorGradient", {0, 1, 2, 3, -1}},
    {"CheckPictureFills", {0, 1}},
    {"Hollow", {0, 1}},
};

const QSize areas[] = {{64, 20}, {64, 20}, {64, 20}, {17, 33}, {1, 1}, {0, 0}, {-5, 10}};

} // namespace

class TestWalk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void anyOrderOfCallsIsSafe_data();
    void anyOrderOfCallsIsSafe();

private:
    int Below(int bound) { return int(random() % unsigned(bound)); }
    template <typename List>
    auto OneOf(const List& list)
    {
        return *(std::begin(list) + Below(int(std::end(list) - std::begin(list))));
    }

    void Step();
    void StartOn(Place& place, unsigned int handle);
    void Change(Lw::HNeonNodeBase& node);

    Sample sample{QStringLiteral("Up we go"), QSize(64, 20)};
    Torv::Display first{QSize(64, 20)};
    Torv::Display second{QSize(40, 40)};
    QStringList files;
    std::mt19937 random;
    std::vector<Place> sign;
    qint64 provoked = 0; // wrong calls that the host itself caused
    QString trail;
};

void TestWalk::initTestCase()
{
    TestSign::KeepComplaints();
    files = QStringList{sample.File("sample.path"), sample.File("sample.descent"),
                        sample.File("broken"),      sample.File("none"),
                        QDir::tempPath(),           QString()};
    QFile whole(files.at(0));
    QFile broken(files.at(2));
    QVERIFY(whole.open(QIODevice::ReadOnly) && broken.open(QIODevice::WriteOnly));
    const QByteArray bytes = whole.readAll();
    broken.write(bytes.left(bytes.size() / 2));
}

/** A session is removed from its own display; with another display, the call fails. */
void TestWalk::StartOn(Place& place, unsigned int handle)
{
    const bool moves = handle != 0 && place.handle != 0 && handle != place.handle;
    const Torv::Accounting before = Torv::Accounts();
    place.render->Start(handle);
    const qint64 wrong = Torv::Accounts().wrongDisplay - before.wrongDisplay;
    provoked += moves ? qMin<qint64>(1, wrong) : 0;
    if (handle != 0 && place.node)
        place.handle = handle;
}

void TestWalk::Change(Lw::HNeonNodeBase& node)
{
    switch (Below(9)) {
    case 0: node.SetSize(OneOf(areas)); return;
    case 1: node.SetHoldTime(OneOf(QVector<int>{0, 2, 5, -1})); return;
    case 2: node.SetNeonEffect(OneOf(QVector<int>{0, 1, 14, 28, 29, 30, -1})); return;
    case 3:
        node.SetAttribute("Text", OneOf(QStringList{"", "  ", "x", "Longer than before"}));
        return;
    case 4: node.SetAttribute("Text", "Up we go"); return;
    case 5:
        node.SetFiles("PathData", {files.at(0)});
        node.SetFiles("DescentVector", {files.at(1)});
        return;
    case 6:
        node.SetFiles(OneOf(QStringList{"PathData", "DescentVector", "FillImage", "NeonGifPath"}),
                      {OneOf(files)});
        return;
    default: break;
    }
    const Attribute& attribute = attributes[Below(int(std::size(attributes)))];
    node.SetAttribute(attribute.key, OneOf(attribute.values));
}

void TestWalk::Step()
{
    Place& place = sign[size_t(Below(places))];
    const int what = Below(100);
    trail += QStringLiteral("%1:%2 ").arg(&place - sign.data()).arg(what);
    if (!place.render) {
        // A renderer without a node now and then, and one for a node that has had others.
        if (!place.node && what >= 10)
            place.node =
                TestSign::NewNode(sample.Node(Below(motionCount), Below(4), Below(10))).release();
        place.render = TestSign::NewRender(place.node);
        place.handle = 0;
        return;
    }
    // Of a hundred steps so many are each of these.
    if (what < 22)
        StartOn(place, first.Handle());
    else if (what < 28)
        StartOn(place, second.Handle());
    else if (what < 30)
        StartOn(place, 0);
    else if (what < 38)
        place.render->Pause();
    else if (what < 44)
        place.render->Stop();
    else if (what < 47)
        place.render->Remove();
    else if (what < 50)
        place.render->PlayNext();
    else if (what < 75)
        TestSign::Tick(1 + Below(4));
    else if (what < 78)
        place.render.reset();
    else if (what < 80)
        Shown(what < 79 ? first : second);
    else if (!place.node)
        return;
    else if (what < 95)
        Change(*place.node);
    else if (what < 97)
        place.node->Duration();
    else if (what < 99)
        delete place.node.data();
    else
        place.node->Delete(); // with the next tick
}

void TestWalk::anyOrderOfCallsIsSafe_data()
{
    QTest::addColumn<int>("seed");
    // 10,000 steps; more with, say, ANIMATIONTEXT_WALK_STEPS=1000000.
    bool isNumber = false;
    const int wished = qEnvironmentVariableIntValue("ANIMATIONTEXT_WALK_STEPS", &isNumber);
    const int walks = isNumber ? qMax(1, wished / stepsOfAWalk) : 10000 / stepsOfAWalk;
    for (int seed = 1; seed <= walks; ++seed)
        QTest::addRow("seed %d", seed) << seed;
}

void TestWalk::anyOrderOfCallsIsSafe()
{
    QFETCH(int, seed);
    random.seed(unsigned(seed));
    qsrand(unsigned(seed));
    Lw::HPluginManager::instance()->SetAlphaBlend(seed % 2 == 0);
    Torv::ResetAccounts();
    provoked = 0;
    trail.clear();
    sign = std::vector<Place>(places);

    for (int step = 0; step < stepsOfAWalk; ++step) {
        Step();
        const Torv::Accounting accounts = Torv::Accounts();
        QVERIFY2(accounts.Misuses() == provoked,
                 qPrintable(trail.right(400) + '\n' + Torv::AccountsReport()));
        QVERIFY(accounts.liveSessions <= places);
    }

    // Stopped, nobody holds anything or calls the device any more; what is deleted comes to
    // nothing.
    for (Place& place : sign) {
        if (place.render)
            place.render->Stop();
    }
    QCOMPARE(Torv::Accounts().liveSessions, 0);
    QCOMPARE(Torv::Accounts().liveLayers, 0);
    const Torv::Accounting stopped = Torv::Accounts();
    TestSign::Tick(3);
    QVERIFY(std::equal(stopped.calls, std::end(stopped.calls), Torv::Accounts().calls));
    for (Place& place : sign) {
        delete place.node.data();
        place.render.reset();
    }
    QCOMPARE(TestSign::Dispatcher()->LiveTimers(), 0);
    QCOMPARE(Torv::Accounts().liveBytes, qint64(0));
    QCOMPARE(Torv::Accounts().Misuses(), provoked);
    QCOMPARE(TestSign::TakeComplaints(), QStringList());
}

int main(int argc, char** argv)
{
    return RunOnTestSign<TestWalk>(argc, argv);
}

#include "tst_walk.moc"
