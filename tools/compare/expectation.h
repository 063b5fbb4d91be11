/**
 * @file
 * What scenes are expected to show, tick by tick, and how much of it is equal.
 */
#pragma once

#include "player/player.h"
#include "scene/motion.h"

#include <QMap>
#include <QStringList>

namespace AnimText::compare {

using Ticks = QVector<player::NodeTick>;

/**
 * The ticks of scenes by the scenes' names. A line of the file is a tick: scene, tick, whether a
 * new picture was shown (0 or 1), its width and height, the first 16 digits of its SHA-1 ("-": not
 * compared), the renderer's state and, if they are known, the first 16 digits of the SHA-1 of the
 * dazzle background.
 */
using Expectation = QMap<QString, Ticks>;

/** Throws Failure. */
Expectation ReadExpectation(const QString& path);
QByteArray ExpectationText(const Expectation& expectation);

/** Counts, motion by motion, how many pictures are as expected. */
class Tally
{
public:
    void Add(const QString& scene, const scene::NodeMotion& motion, const Ticks& expected,
             const Ticks& shown);

    QByteArray Table() const;
    bool IsEqual() const;

private:
    struct Row
    {
        const char* motion = "all";
        int scenes = 0, pictures = 0, equal = 0;
        QString firstDifference;
    };
    /** Something of a scene that is equal or not. */
    struct Aspect
    {
        const char* ofAll;
        const char* ofScene;
        int scenes = 0;       ///< of which it is known
        QStringList differ{}; ///< those where it is not as expected

        void Add(const QString& scene, bool isKnown, bool isEqual);
    };

    QMap<QPair<scene::Mode, int>, Row> rows; ///< by the motion and its number
    Aspect ticks{"Ticks, sizes and states", "Ticks, sizes or states"};
    Aspect pictures{"Pictures", "Pictures"};
    Aspect backgrounds{"Backgrounds", "Backgrounds"};
};

} // namespace AnimText::compare
