/**
 * @file
 * What a text was laid out from, which a scene file does not say, kept beside the scene.
 */
#ifndef ANIMTEXT_TEXTSOURCE_H
#define ANIMTEXT_TEXTSOURCE_H

#include "author/author.h"
#include "author/scenestore.h"

#include <QByteArray>
#include <QVector>

namespace AnimText {

/** A text as its author wrote it, and the wishes for its layout. */
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

/** What AuthorNode() takes to lay @p source out for the motion and the area of @p settings. */
AuthorOptions OptionsFor(const TextSource& source, const SceneNode& settings);

/** The source as far as the node itself tells: its text and its styles. */
TextSource SourceOf(const SceneNode& node);

/** Sources by the digest of the layout that was made from them. */
using TextSources = QMap<QByteArray, TextSource>;

/** Tells the layout of @p node from all others; speeds, holds and places do not count. */
QByteArray LayoutDigest(const SceneNode& node);

/** The file in which the sources of the scene at @p scenePath are kept. */
QString SourcesName(const QString& scenePath);
/** Empty where there is none, or it is not to be read. */
TextSources ReadSources(const QString& scenePath);
QByteArray SourcesToJson(const TextSources& sources);
/** What can be read of @p json. */
TextSources SourcesFromJson(const QByteArray& json);

} // namespace AnimText

#endif
