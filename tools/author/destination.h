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
    int page = 1;    ///< one that is there, or the one after the last
    int area = 0;    ///< one that is there, or 0 for an area of its own
    QString instead; ///< the place of the text that it replaces, as for Scene::Find(); page and
                     ///< area do not count then
    QSize display; ///< its new size in pixels; empty to leave it, and in a new scene to have just
                   ///< what is needed
};

/**
 * Puts @p authored into @p scene and its data files to @p dataFiles.
 * @return false when it cannot go there, and then @p error has one line on it
 */
bool PutAuthored(const AuthoredNode& authored, const Destination& destination, Scene* scene,
                 DataFiles* dataFiles, QString* error);

} // namespace AnimText

#endif
