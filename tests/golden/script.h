/**
 * @file
 * A text of rectangles played by a script, and what was seen of it, a line a tick.
 */
#ifndef TESTS_SCRIPT_H
#define TESTS_SCRIPT_H

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
 *     corners=5       glyphs and painted box are told each fifth tick; 0: never
 *     start, nowhere  on the display, or on none
 *     pause stop remove next, gone: the node
 *     reflect         each frame draws the zoom with its reflection, which no number selects
 *     told            the node's duration
 *     40              ticks
 *     runs=2          ticks until so many runs are counted
 *
 * What is told are the changes, from what most texts are once they have started, and the device's
 * calls but for the usual showing of frames. Counters are told when they do not go on as before. A
 * tick's letter is D for a frame drawn and shown, H for a hold painted and shown, d and h when
 * nothing was shown, - when nothing was done; X, Y, x, y and . when another layer was shown, too.
 */
class Script
{
public:
    explicit Script(const QString& line);

    QStringList Lines() const { return lines; }

private:
    void Do(const QString& word);
    void Set(const QString& key, const QString& value);
    void Operate(const QString& word);
    void WriteText();
    void PlantTree(const QVector<int>& numbers);
    void Fail(const QString& call, int nth);
    void Tick();
    void Note(bool first);
    void Flush();

    std::unique_ptr<Lw::HNode> root; // outlives the fixture's node, which may be within
    RenderFixture play;
    Messages messages;
    QVector<int> widths{30, 20, 40}, heights{20, 25, 16}, descents{4, 5, 3};
    int outlines = -1, shift = 0, cornersEach = 1, seed = 1;
    bool reflects = false;

    int tick = 0;
    int frames = 0;
    qint64 swaps = 0;
    QMap<QString, QString> told;         // by the field
    QMap<QString, double> value, change; // of the counters
    QStringList lines;
    QString head, letters, fields; // of the line that grows
};

#endif
