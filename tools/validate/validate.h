/**
 * @file
 * Finds mistakes in a scene that plays without an error but looks wrong on the sign.
 */
#pragma once

#include "scene/scene.h"
#include "validate/rules.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace AnimText::validate {

/** One mistake in one place. */
struct Finding
{
    Mistake mistake;
    QString place;    ///< path in the scene file, e.g. "$.pages[0].areas[0].nodes[0].hold"
    QString found;    ///< what is there
    QString expected; ///< what should be there

    /** Its kind of mistake. */
    const Rule& GetRule() const { return RuleFor(mistake); }
    /** All of it as one line for people. */
    QString Line() const;
};

/**
 * The mistakes in the scene file @p path, or in standard input for "-", in the order of the file;
 * if it cannot be read, only the reasons for that.
 */
QList<Finding> ValidateScene(const QString& path);
/** The same for a scene that is or will be in the file @c scene.path. */
QList<Finding> ValidateScene(const scene::Scene& scene);

/** The findings of one scene. */
struct Report
{
    QString path; ///< as given
    QList<Finding> findings;
};

/** @p report for people, a few lines for each finding. */
QByteArray ReportAsText(const Report& report);

/**
 * One report as a JSON object: "scene", "errors", "warnings" and the list "findings"; several as a
 * list of such objects.
 */
QByteArray ReportsAsJson(const QList<Report>& reports);

/** How many of @p findings are of that severity. */
int Count(const QList<Finding>& findings, Severity severity);

} // namespace AnimText::validate
