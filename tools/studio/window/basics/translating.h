/**
 * @file
 * The languages that the studio speaks.
 */
#ifndef ANIMTEXT_TRANSLATING_H
#define ANIMTEXT_TRANSLATING_H

#include <QLocale>

namespace AnimText {

/**
 * Has the program's words, and those of Qt's dialogs, in the language of @p locale where there are
 * any. Called once, before the first window is made.
 */
void Translate(const QLocale& locale);

} // namespace AnimText

#endif
