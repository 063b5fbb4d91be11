/**
 * @file
 * The source of a text's layout, kept in a file beside the scene.
 */
#ifndef ANIMTEXT_TEXTSOURCE_H
#define ANIMTEXT_TEXTSOURCE_H

#include "author/author.h"
#include "author/scenestore.h"

#include <QByteArray>
#include <QVector>

namespace AnimText {

/** A text as its author wrote it, and the options for its layout. */
struct TextSource
{
    StyledText text; ///< sizes in pixels
    QString name{};  ///< for people; empty for the text itself
    Fit fit = Fit::None;
    Align align = Align::Natural;
    VAlign valign = VAlign::Middle;
    int padding = 0; ///< pixels
    bool keepsWords = true;
};

bool operator==(const TextSource& a, const TextSource& b);
inline bool operator!=(const TextSource& a, const TextSource& b)
{
    return !(a == b);
}

/** Options for AuthorNode() to lay out @p source with the motion and the area of @p settings. */
AuthorOptions OptionsFor(const TextSource& source, const SceneNode& settings);

/** The source as far as the node has it: its text and its styles. */
TextSource SourceOf(const SceneNode& node);

/** Sources by the digest of the layout that was made from them. */
using TextSources = QMap<QByteArray, TextSource>;

/** Identifies the layout of @p node, regardless of speed, hold and position. */
QByteArray LayoutDigest(const SceneNode& node);

/** The name of the file with the sources of a scene. */
QString SourcesName(const QString& scenePath);
/** Empty if the file is missing or cannot be read. */
TextSources ReadSources(const QString& scenePath);
QByteArray SourcesToJson(const TextSources& sources);
/** Skips what cannot be read. */
TextSources SourcesFromJson(const QByteArray& json);

} // namespace AnimText

#endif
