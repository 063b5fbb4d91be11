/**
 * @file
 * The schema and the tables of scene files, both made from Attributes().
 */
#pragma once

#include <QByteArray>

namespace AnimText::scene {

/**
 * A JSON Schema (draft 7) of scene files, for editors. Like validate, it
 * requires what makes sense on the sign, not only what can be read.
 */
QByteArray SceneSchema();

/** Markdown tables of every key of a text. */
QByteArray SceneTables();

} // namespace AnimText::scene
