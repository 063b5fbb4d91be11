/**
 * @file
 * Makes a node of a scene from a text.
 */
#pragma once

#include "layout/layout.h"
#include "scene/scene.h"

namespace AnimText::author {

/** A text as its author wrote it. */
struct TextSource : layout::Setting
{
    layout::StyledText text; ///< sizes in pixels
    QString name{};          ///< for people; empty for the text itself
};

/** A node with its data files, not yet on disk, and what to warn of. */
struct AuthoredNode : layout::LaidOut
{
    scene::SceneNode node; ///< its "PathData" and "DescentVector" are not set yet
};

/**
 * Lays out a text for @p motion in the area of @p settings; an empty area fits the text. Needs a
 * QGuiApplication.
 * @return false, with one line in @p error, if a sign cannot show it
 */
bool AuthorNode(const TextSource& source, const scene::SceneNode& settings,
                const scene::NodeMotion& motion, AuthoredNode* authored, QString* error);

} // namespace AnimText::author
