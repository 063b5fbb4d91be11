/**
 * @file
 * Writes a text into a scene file.
 */
#ifndef ANIMTEXT_AUTHORSCENE_H
#define ANIMTEXT_AUTHORSCENE_H

#include "author/destination.h"
#include "author/markup.h"

namespace AnimText {

/** What is asked for. */
struct AuthorRequest
{
    QString path; ///< of the scene
    WrittenText written;
    Setting setting;
    SceneNode node; ///< the settings of the text; an empty area fits the text
    NodeMotion motion;
    bool hasPlace = false; ///< a text in an existing area does not take its position from there
    Destination destination;
};

/** What came of it. */
struct AuthoredScene
{
    AuthoredNode text;
    Stored stored;
    Place place;       ///< of the text
    QStringList notes; ///< a line for each change that the text needed
};

/**
 * Lays out a text, puts it into a scene and writes the scene with its data files. Needs a
 * QGuiApplication. Unless Saved, @p error has one line, and of @p authored only the notes count.
 */
Storing AuthorScene(const AuthorRequest& request, AuthoredScene* authored, QString* error);

} // namespace AnimText

#endif
