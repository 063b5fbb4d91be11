/**
 * @file
 * Writes a text into a scene file.
 */
#pragma once

#include "author/markup.h"
#include "author/scenestore.h"

#include <functional>

namespace AnimText::author {

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

/** What is asked for. */
struct AuthorRequest
{
    QString path; ///< of the scene
    WrittenText written;
    layout::Setting setting;
    scene::SceneNode node; ///< the settings of the text; an empty area fits the text
    scene::NodeMotion motion;
    bool hasPlace = false; ///< a text in an existing area does not take its position from there
    Destination destination;
    std::function<void()> beforeSaving{}; ///< called when the text is laid out
};

/** What came of it. */
struct AuthoredScene
{
    AuthoredNode text;
    Stored stored;
    scene::Place place; ///< of the text
    QStringList notes;  ///< a line for each change that the text needed
};

/**
 * Lays out a text, puts it into a scene and writes the scene with its data files. Needs a
 * QGuiApplication. Unless Saved, @p error has one line, and of @p authored only the notes count.
 */
Storing AuthorScene(const AuthorRequest& request, AuthoredScene* authored, QString* error);

} // namespace AnimText::author
