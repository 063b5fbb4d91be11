// The tools' idea of the play time against what the node answers, where 32 bits suffice.

#include "testfolder.h"

#include "author/glyphfiles.h"
#include "node/hanimationtextnode.h"
#include "scene/pages.h"
#include "validate/playtime.h"

#include <QPainterPath>
#include <QRandomGenerator>
#include <QtTest>

using namespace AnimText;

class tst_playtime : public QObject
{
    Q_OBJECT

private slots:
    void equalsTheNodes_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("motion");
        for (int mode = 0; mode <= 2; ++mode) {
            for (int motion = -1; motion <= 30; ++motion)
                QTest::addRow("mode %d, motion %d", mode, motion) << mode << motion;
        }
    }

    void equalsTheNodes()
    {
        QFETCH(int, mode);
        QFETCH(int, motion);
        QRandomGenerator random(static_cast<quint32>(motion + 2));
        PlayTimeInput input;
        input.mode = mode;
        input.motion = motion;
        for (int speed = 0; speed <= 9; ++speed) {
            input.speed = speed;
            input.hold = random.bounded(-2, 30);
            input.plays = random.bounded(0, 4);
            input.area = QSize(random.bounded(20, 200), random.bounded(1, 60));
            const int count = random.bounded(1, 12);
            for (QVector<int>* values : {&input.widths, &input.heights, &input.descents}) {
                values->resize(count);
                for (int& value : *values)
                    value = random.bounded(values == &input.descents ? -5 : 0, 50);
            }
            input.pageStarts = PagesFromBeginning(input.widths, input.area.width());
            QCOMPARE(PlayTime(input), double(NodesDuration(input)));
        }
    }

private:
    int NodesDuration(const PlayTimeInput& input) const
    {
        Lw::HNodeAnimationText::HAnimationTextNode node;
        const int count = input.widths.size();
        const QByteArray outlines = PathFile(QVector<QPainterPath>(count));
        node.SetFiles("PathData", {folder.Write("path", outlines)});
        node.SetFiles("DescentVector", {folder.Write("descent", DescentFile(input.descents))});
        node.SetAttribute("Text", QString(count, 'x'));
        node.SetAttribute("EffectType", input.mode);
        node.SetAttribute(input.mode == 1 ? "ContinueStyle" : "AnimationEffect", input.motion);
        node.SetAttribute(input.mode == 1 ? "ContinueSpeed" : "AnimationSpeed", input.speed);
        node.SetAttribute("PlayTimes", input.plays);
        QList<QHash<QString, QString>> widths;
        QList<QHash<QString, QString>> heights;
        for (int i = 0; i < count; ++i) {
            widths.append({{"text_width", QString::number(input.widths[i])}});
            heights.append({{"text_height", QString::number(input.heights[i])}});
        }
        node.SetList("TextWidth", widths);
        node.SetList("TextHeight", heights);
        node.SetSize(input.area);
        node.SetHoldTime(input.hold);
        return node.Duration();
    }

    TestFolder folder;
};

QTEST_MAIN(tst_playtime)
#include "tst_playtime.moc"
