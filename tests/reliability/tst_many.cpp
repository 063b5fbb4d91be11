// Three hundred texts on one display: each shows what it shows when it is alone.
#include "player/player.h"
#include "samples.h"
#include "testsign.h"

#include <vector>

namespace {

constexpr int nodes = 300;
constexpr int ticks = 60;

} // namespace

class TestMany : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSign::KeepComplaints(); }
    void TheSameAsAlone_data();
    void TheSameAsAlone();
};

void TestMany::TheSameAsAlone_data()
{
    QTest::addColumn<bool>("alphaBlend");
    QTest::newRow("alpha") << true;
    QTest::newRow("colour key") << false;
}

void TestMany::TheSameAsAlone()
{
    QFETCH(bool, alphaBlend);
    const Sample samples[] = {{QStringLiteral("One"), QSize(48, 16)},
                              {QStringLiteral("Two pages"), QSize(40, 20)},
                              {QStringLiteral("3"), QSize(24, 24)}};
    AnimText::Scene together;
    together.display = QSize(20 * 50, 15 * 30);
    together.alphaBlend = alphaBlend;
    for (int i = 0; i < nodes; ++i) {
        // One text trembles, the last one: the random numbers are everybody's.
        int motion = i % motionCount == trembleEffect ? 5 : i % motionCount;
        if (i == nodes - 1)
            motion = trembleEffect;
        AnimText::SceneNode node =
            samples[i % 3].Node(motion, i / motionCount % BackgroundCount, 3 + i % 7);
        node.pos = QPoint(i % 20 * 50, i / 20 * 30);
        node.neonEffect = 1 + i % 28;
        node.hold = i % 4;
        together.pages.append({{{{node}}}});
    }

    AnimText::Player player(TestSign::Dispatcher(), TestSign::Plugin());
    QString error;
    QVERIFY2(player.Load(together, &error), qPrintable(error));
    Torv::ResetAccounts();
    player.Start();
    std::vector<QVector<uint>> seen(nodes);
    const auto look = [](AnimText::Player& from, int node) {
        // Layer by layer: composed pictures would hide what lies below.
        uint hash = uint(from.State(node));
        const PicSession session = from.Scenery().Session(node);
        for (int layer = 0; layer < Torv::LayerCount(session); ++layer) {
            const QImage picture = Torv::FrontImage(session, layer);
            for (int y = 0; y < picture.height(); ++y) // without the padding of the rows
                hash = qHashBits(picture.constScanLine(y),
                                 size_t(picture.width()) * size_t(picture.depth()) / 8, hash + 1);
        }
        return hash;
    };
    for (int tick = 0; tick <= ticks; ++tick) {
        for (int node = 0; node < nodes; ++node)
            seen[size_t(node)].append(look(player, node));
        player.Advance();
    }
    QCOMPARE(Torv::Accounts().liveSessions, nodes);
    player.Scenery().Stop();
    QCOMPARE(Torv::Accounts().liveSessions, 0);
    QCOMPARE(TestSign::Dispatcher()->LiveTimers(), 0);
    QCOMPARE(Torv::Accounts().Misuses(), qint64(0));

    for (int node = 0; node < nodes; ++node) {
        AnimText::Scene alone = together;
        alone.pages = {together.pages.at(node)};
        QVERIFY2(player.Load(alone, &error), qPrintable(error));
        player.Start();
        for (int tick = 0; tick <= ticks; ++tick) {
            QVERIFY2(look(player, 0) == seen.at(size_t(node)).at(tick),
                     qPrintable(QStringLiteral("node %1, tick %2").arg(node).arg(tick)));
            player.Advance();
        }
    }
    QCOMPARE(TestSign::TakeComplaints(), QStringList());
}

int main(int argc, char** argv)
{
    return RunOnTestSign<TestMany>(argc, argv);
}

#include "tst_many.moc"
