/**
 * @file
 * A text of rectangles played by a script, and what was seen of it, in words.
 */
#pragma once

#include "renderfixture.h"

#include <hnode.h>

/**
 * Plays one text as a line of words says, in their order:
 *
 *     Key=7           an attribute of the node
 *     widths=30,20    and heights, descents: of the characters, metrics= all three;
 *                     outlines=4: how many there are
 *     shift=-9        of all outlines to the right
 *     area=60x41 pos=7,9 hold=3 blend=0 seed=4
 *     tree=3:2:1:0    ancestors of the node, children of its area and of its program, still text
 *                     beside it
 *     fail=append:2   the second call from here fails; fail=create:0 all of them do
 *     corners=5       glyphs and painted box are noted each fifth tick; 0: never
 *     start, nowhere  on the display, or on none
 *     pause stop remove next, gone: the node
 *     reflect         each frame draws the zoom with its reflection, which no number selects
 *     told            the node's pages, from its start and from its end, and its duration in ms;
 *     speeds=0,9      at these speeds
 *     40              ticks
 *     runs=2          ticks until so many runs are counted
 *
 * A line of the outcome begins with its first tick, what was done in it and in the ticks that
 * follow: "frame" drawn and shown, "hold" painted and shown, "unseen" when nothing was shown,
 * "idle" when nothing was done, with a plus when another layer was shown, too. Then come the
 * changes of that first tick. Left out is what goes without saying: what most texts are once they
 * have started, the device's calls when frames are shown, and what goes on as it did: offsets grow
 * by their last step, also after they have begun again; painted box (left, top, right, bottom) and
 * glyphs (first corner, opposite corner) move on as they did when they were last noted, the box
 * within the picture. "as 20 earlier" repeats the lines of 20 ticks before, again and again.
 */
class Script
{
public:
    explicit Script(const QString& line);

    QStringList Lines() const;

private:
    struct Counter
    {
        double value = 0, step = 0, moved = 0;
    };
    struct Places
    {
        QVector<double> at, steps;
    };
    struct Line
    {
        int tick; ///< -1 where no tick begins it
        int ticks;
        QString what;
    };

    void Do(const QString& word);
    void Set(const QString& key, const QString& value);
    void Operate(const QString& word);
    void WriteText();
    void PlantTree(const QVector<int>& numbers);
    void Fail(const QString& call, int nth);
    void Tick();
    void Note(bool first);
    void Expect(const QString& name, double now, double expected);
    void Expect(const QString& yes, bool now, bool expected);
    void Flow(const QString& name, double now, bool flows);
    void Follow(const QString& name, Places& places, const QVector<double>& now,
                const QSize& inside);
    void Flush();

    std::unique_ptr<Lw::HNode> root; // outlives the fixture's node, which may be within
    RenderFixture play;
    Messages messages;
    QVector<int> widths{30, 20, 40}, heights{20, 25, 16}, descents{4, 5, 3};
    int outlines = -1, shift = 0, cornersEach = 1, seed = 1;
    bool reflects = false, scrolls = false;

    int tick = 0;
    int frames = 0;
    qint64 swaps = 0;
    QMap<QString, QString> told; // by the field
    QMap<QString, Counter> counters;
    Places box, glyphs;
    QStringList changes; // of this tick
    QVector<Line> lines;
    // Of the line that grows.
    QString operation, letters;
    QStringList fields;
    int begin = 0;
};
