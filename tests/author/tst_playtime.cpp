#include "glyphfiles.h"
#include "node/hanimationtextnode.h"
#include "pages.h"
#include "playtime.h"

#include <QPainterPath>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace AnimText;
using Lw::HNodeAnimationText::HAnimationTextNode;

namespace {

QList<QHash<QString, QString>> Rows(const char* field, const QVector<int>& values)
{
    QList<QHash<QString, QString>> rows;
    for (int value : values)
        rows.append({{QString::fromLatin1(field), QString::number(value)}});
    return rows;
}

} // namespace

/** The tools' idea of the play time against what the node answers, where 32 bits suffice. */
class PlayTimeTest : public QObject
{
    Q_OBJECT

private slots:
    void equalsTheNodes_data();
    void equalsTheNodes();
    void goesBeyondTheNodes();

private:
    void Fill(HAnimationTextNode* node, const PlayTimeInput& input);

    QTemporaryDir folder;
};

void PlayTimeTest::Fill(HAnimationTextNode* node, const PlayTimeInput& input)
{
    const auto write = [&](const char* name, const QByteArray& content) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        node->SetFiles(QString::fromLatin1(name), {file.fileName()});
    };
    write("PathData", PathFile(QVector<QPainterPath>(input.widths.size())));
    write("DescentVector", DescentFile(input.descents));
    const bool scrolls = input.mode == 1;
    node->SetAttribute(QStringLiteral("Text"), QString(input.widths.size(), QLatin1Char('x')));
    node->SetAttribute(QStringLiteral("EffectType"), input.mode);
    node->SetAttribute(QLatin1String(scrolls ? "ContinueStyle" : "AnimationEffect"), input.motion);
    node->SetAttribute(QLatin1String(scrolls ? "ContinueSpeed" : "AnimationSpeed"), input.speed);
    node->SetAttribute(QStringLiteral("PlayTimes"), input.plays);
    node->SetList(QStringLiteral("TextWidth"), Rows("text_width", input.widths));
    node->SetList(QStringLiteral("TextHeight"), Rows("text_height", input.heights));
    node->SetSize(input.area);
    node->SetHoldTime(input.hold);
}

void PlayTimeTest::equalsTheNodes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("motion");
    for (int effect = -1; effect <= 30; ++effect)
        QTest::addRow("effect %d", effect) << 0 << effect;
    for (int scroll = -1; scroll <= 4; ++scroll)
        QTest::addRow("scroll %d", scroll) << 1 << scroll;
    QTest::newRow("static") << 2 << 0;
}

void PlayTimeTest::equalsTheNodes()
{
    PlayTimeInput input;
    QFETCH(int, mode);
    QFETCH(int, motion);
    input.mode = mode;
    input.motion = motion;
    QRandomGenerator random(static_cast<quint32>(motion + 2));
    for (int speed = 0; speed <= 9; ++speed) {
        input.speed = speed;
        input.hold = random.bounded(-2, 30);
        input.plays = random.bounded(0, 4);
        input.area = QSize(random.bounded(20, 200), random.bounded(1, 60));
        const int count = random.bounded(1, 12);
        for (QVector<int>* values : {&input.widths, &input.heights, &input.descents})
            values->resize(count);
        for (int i = 0; i < count; ++i) {
            input.widths[i] = random.bounded(40);
            input.heights[i] = random.bounded(60);
            input.descents[i] = random.bounded(-5, 20);
        }
        input.pageStarts = PagesFromBeginning(input.widths, input.area.width());
        HAnimationTextNode node;
        Fill(&node, input);
        QCOMPARE(PlayTime(input), double(node.Duration()));
    }
}

void PlayTimeTest::goesBeyondTheNodes()
{
    PlayTimeInput input;
    input.motion = 4;
    input.speed = 9;
    input.plays = 3000000;
    input.hold = 10;
    input.area = QSize(100, 20);
    input.widths = {10};
    input.heights = {20};
    input.descents = {4};
    input.pageStarts = {0, 1};
    QCOMPARE(PlayTime(input), 3000000.0 * (66 + 1000));
    HAnimationTextNode node;
    Fill(&node, input);
    QVERIFY(PlayTime(input) != double(node.Duration()));
}

QTEST_MAIN(PlayTimeTest)
#include "tst_playtime.moc"
