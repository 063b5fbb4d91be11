/**
 * @file
 * Looks for mistakes in a scene that play without an error and come out wrong on the sign.
 */
#ifndef ANIMTEXT_VALIDATE_H
#define ANIMTEXT_VALIDATE_H

#include "scene/scene.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace AnimText {

enum class Severity { Warning, Error };

/** One kind of mistake. */
struct Rule
{
    const char* code;  ///< keeps its meaning from version to version, e.g. "speed-range"
    Severity severity; ///< an error shows nothing or something wrong; a warning may be meant
    const char* why;   ///< what it does on the sign
};

/** Every kind of mistake that is looked for. */
const QList<Rule>& Rules();
/** The one of that code, which must exist. */
const Rule* RuleFor(const char* code);

/** One mistake in one place. */
struct Finding
{
    const Rule* rule;
    QString place;    ///< path in the scene file, e.g. "$.pages[0].areas[0].nodes[0].hold"
    QString found;    ///< what stands there
    QString expected; ///< what should
};

/** The mistakes in the scene file @p path, in the order of the file. Clean scenes have none. */
QList<Finding> ValidateScene(const QString& path);
/** The same for a scene that is or will be in the file @c scene.path. */
QList<Finding> ValidateScene(const Scene& scene);

/** The findings on the scene @p path for people, a few lines each. */
QByteArray FindingsAsText(const QString& path, const QList<Finding>& findings);

/** The same as one JSON object: "scene", "errors", "warnings" and the list "findings". */
QByteArray FindingsAsJson(const QString& path, const QList<Finding>& findings);

/** How many of @p findings are of that severity. */
int Count(const QList<Finding>& findings, Severity severity);

} // namespace AnimText

#endif
