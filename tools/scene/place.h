/**
 * @file
 * Places in a scene file and how they are written: "$.pages[0].areas[0].nodes[0].hold".
 */
#pragma once

#include <QString>

namespace AnimText::scene {

/** The place of a node; all count from 0. */
struct Place
{
    int page = 0;
    int area = 0;
    int node = 0;

    /** "$.pages[0].areas[0].nodes[0]". */
    QString Path() const;
};

bool operator==(const Place& a, const Place& b);

/** Reads the node's place that @p path begins with; returns false when it begins with none. */
bool ReadPlace(const QString& path, Place* place);

/** The path of a member, and of an item of a list. */
QString Member(const QString& path, const QString& key);
QString Item(const QString& path, int index);

} // namespace AnimText::scene
