/**
 * @file
 * The source of a text's layout, kept in a file beside the scene.
 */
#pragma once

#include "author/author.h"
#include "author/scenestore.h"

#include <QByteArray>

namespace AnimText::author {

bool operator==(const TextSource& a, const TextSource& b);

/** The source as far as the node has it: its text and its styles. */
TextSource SourceOf(const scene::SceneNode& node);

/** Sources by the digest of the layout that was made from them. */
using TextSources = QMap<QByteArray, TextSource>;

/** Identifies the layout of @p node, regardless of speed, hold and position. */
QByteArray LayoutDigest(const scene::SceneNode& node);

/** The name of the file with the sources of a scene. */
QString SourcesName(const QString& scenePath);
/** Empty if the file is missing or cannot be read. */
TextSources ReadSources(const QString& scenePath);
QByteArray SourcesToJson(const TextSources& sources);
/** Skips what cannot be read. */
TextSources SourcesFromJson(const QByteArray& json);

} // namespace AnimText::author
