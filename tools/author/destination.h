/**
 * @file
 * Where in a scene a new text goes.
 */
#ifndef ANIMTEXT_DESTINATION_H
#define ANIMTEXT_DESTINATION_H

#include "author/author.h"
#include "author/scenestore.h"
#include "scene/scene.h"

#include <QSize>
#include <QString>

namespace AnimText {

/** Where a new text goes. Pages and areas count from 1. */
struct Destination
{
    bool isAdded = false;    ///< to the texts of the scene, which it replaces otherwise
    bool overwrites = false; ///< it may replace several texts
    int page = 1;            ///< existing, or one more than the last for a new page
    int area = 0;            ///< existing, or 0 for a new area
    /** Replaces this text, a place as in Scene::Find(); page and area are ignored then. */
    QString instead;
    /** New size of the display in pixels. Empty: unchanged, or in a new scene what the area needs.
     */
    QSize display;
    bool isOpaque = false; ///< the display's layers do not blend
};

/**
 * Puts @p authored into @p scene and its data files into @p dataFiles. Its pictures become relative
 * to the scene's folder.
 * @param place set to where it is
 * @return false, with one line in @p error, if it cannot go there
 */
bool PutAuthored(const AuthoredNode& authored, const Destination& destination, Scene* scene,
                 DataFiles* dataFiles, Place* place, QString* error);

} // namespace AnimText

#endif
