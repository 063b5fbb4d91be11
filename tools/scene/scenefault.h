/**
 * @file
 * What is wrong in a scene file, and where.
 */
#pragma once

#include <QString>

namespace AnimText::scene {

/** One thing that is wrong in the structure of a scene file. */
struct SceneFault
{
    QString place;    ///< JSON path; line and column of a syntax error; empty for the whole file
    QString expected; ///< what should be there
    QString found;    ///< what is there
    int others = 0;   ///< rows of the same list in which the same is wrong

    /** One line for people, with the file @p path at its beginning. */
    QString Line(const QString& path) const;
};

/** " and 2 more like it", or nothing for 0. */
QString AndMore(int others);

/** "1 row", "2 rows". */
QString Counted(int count, const QString& noun);

} // namespace AnimText::scene
