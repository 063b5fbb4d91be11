/**
 * @file
 * The texts of a scene by their places: to find one, put one in, take one out.
 */
#ifndef ANIMTEXT_PLACES_H
#define ANIMTEXT_PLACES_H

#include "author/author.h"
#include "author/scenestore.h"
#include "scene/scene.h"

#include <QList>
#include <QSize>
#include <QString>

namespace AnimText {

/** Where a node stands in its scene; all count from 0. */
struct Place
{
    int page = 0;
    int area = 0;
    int node = 0;
};

/** The places of all nodes, in the order of the file. */
QList<Place> Places(const Scene& scene);

/**
 * The place that @p word names: its number in Places(), counted from 1, or its path in the file,
 * like "$.pages[0].areas[0].nodes[0]", whatever follows.
 * @return false when there is none, and then @p error has one line on it
 */
bool FindPlace(const Scene& scene, const QString& word, Place* place, QString* error);

/** The node at @p place, which must be one of the scene's. */
SceneNode& NodeAt(Scene* scene, const Place& place);

/** Takes the node out, and with it an area and a page that are empty then. */
void RemoveNode(Scene* scene, const Place& place);

/** Where a new text goes. Pages and areas count from 1. */
struct Destination
{
    int page = 1;    ///< one that is there, or the one after the last
    int area = 0;    ///< one that is there, or 0 for an area of its own
    QString instead; ///< the place of the text that it replaces, as for FindPlace(); page and area
                     ///< do not count then
    QSize display;   ///< its new size in pixels; empty to leave it, and in a new scene to have just
                     ///< what is needed
};

/**
 * Puts @p authored into @p scene and its data files to @p dataFiles.
 * @return false when it cannot go there, and then @p error has one line on it
 */
bool PutAuthored(const AuthoredNode& authored, const Destination& destination, Scene* scene,
                 DataFiles* dataFiles, QString* error);

/**
 * Sets what needs no new layout, by the names of the command line ("speed", "hold", "color" ...) or
 * of the scene file ("AnimationSpeed" ...). A motion can take the place of another one that sets
 * the text in the same way.
 * @return false when that cannot be, and then @p error has one line on it
 */
bool SetValue(SceneNode* node, const QString& key, const QString& value, QString* error);

} // namespace AnimText

#endif
