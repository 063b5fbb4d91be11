/**
 * @file
 * What scenes are expected to show, tick by tick, and how much of it is equal.
 */
#ifndef ANIMTEXT_EXPECTATION_H
#define ANIMTEXT_EXPECTATION_H

#include "player/player.h"
#include "scene/motion.h"

#include <QMap>
#include <QStringList>

namespace AnimText {

using Ticks = QVector<NodeTick>;

/**
 * The ticks of scenes by the scenes' names. A line of the file is a tick: scene, tick, whether a
 * new picture was shown (0 or 1), its width and height, the first 16 digits of its SHA-1 ("-": not
 * compared), the renderer's state and, if they are known, the first 16 digits of the SHA-1 of the
 * dazzle background.
 */
using Expectation = QMap<QString, Ticks>;

bool ReadExpectation(const QString& path, Expectation* expectation, QString* error);
QByteArray ExpectationText(const Expectation& expectation);

/** Counts, motion by motion, how many pictures are as expected. */
class Tally
{
public:
    void Add(const QString& scene, const NodeMotion& motion, const Ticks& expected,
             const Ticks& shown);

    QByteArray Table() const;
    bool IsEqual() const;

private:
    struct Row
    {
        QString motion;
        int scenes = 0, pictures = 0, equal = 0;
        QString firstDifference;
    };

    QMap<QPair<Mode, int>, Row> rows; ///< by the motion and its number
    Row all;
    int withPictures = 0, withBackground = 0;
    QStringList ticksDiffer, picturesDiffer, backgroundsDiffer; ///< scenes
};

} // namespace AnimText

#endif
