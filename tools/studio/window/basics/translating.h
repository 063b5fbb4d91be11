/**
 * @file
 * Translations of the studio.
 */
#pragma once

#include <QLocale>

namespace AnimText::studio::window::basics {

/**
 * Installs the translations of the program and of Qt's dialogs for @p locale, if there are any.
 * Call it once, before creating the first window.
 */
void Translate(const QLocale& locale);

} // namespace AnimText::studio::window::basics
