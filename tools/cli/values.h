/**
 * @file
 * Reads the values of options. Each function throws Misuse if @p text is not a value of the option.
 */
#ifndef ANIMTEXT_VALUES_H
#define ANIMTEXT_VALUES_H

#include "cli/option.h"

#include <QColor>
#include <QPair>
#include <QPoint>
#include <QSize>

namespace AnimText {

int ToNumber(const Option& option, const QString& text);
double ToFraction(const Option& option, const QString& text);
double ToMilliseconds(const Option& option, const QString& text);
QSize ToSize(const Option& option, const QString& text);
QPoint ToPoint(const Option& option, const QString& text);
QColor ToColor(const Option& option, const QString& text);
QPair<int, int> ToRange(const Option& option, const QString& text);
int ToChoice(const Option& option, const QString& text);

/** Reads @p text as a value of the option's kind. */
void CheckValue(const Option& option, const QString& text);

/** "plain, linear or radial" */
QString OneOf(const QStringList& words);

} // namespace AnimText

#endif
