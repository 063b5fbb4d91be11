/**
 * @file
 * When the host plays what: by planned times, not by actual times.
 */
#pragma once

#include "scene/scene.h"

#include <QVector>

#include <limits>

namespace AnimText::player {

/** A node's time on the display, in milliseconds from the start of the program. */
struct Showing
{
    int node; ///< in the order of the file
    qint64 from;
    qint64 until;
};

/**
 * One showing of a program: its pages follow one another, the areas of a page play side by side and
 * the nodes of an area in turn, each for its Duration(). A page ends with its longest area; the
 * last node of the others continues until then. Nodes with a planned time of 0 are not shown.
 */
struct Schedule
{
    QVector<Showing> showings; ///< in the order of their beginnings
    qint64 length = 0;         ///< milliseconds
};

constexpr qint64 never = std::numeric_limits<qint64>::max();

/** All of @p nodes at once, until something else is played. */
Schedule AllAtOnce(int nodes);

/** @param durations what each node's Duration() returns, milliseconds, in the order of the file */
Schedule HostSchedule(const scene::Scene& scene, const QVector<qint64>& durations);

} // namespace AnimText::player
