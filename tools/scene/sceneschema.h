/**
 * @file
 * What a scene file may hold, for programs and for people; both are made from Attributes().
 */
#ifndef ANIMTEXT_SCENESCHEMA_H
#define ANIMTEXT_SCENESCHEMA_H

#include <QByteArray>

namespace AnimText {

/**
 * A JSON Schema (draft 7) of scene files, for editors. It asks for what makes sense on the sign, as
 * validate does, and not only for what can be read.
 */
QByteArray SceneSchema();

/** Markdown tables of every key of a text. */
QByteArray SceneTables();

} // namespace AnimText

#endif
