/**
 * @file
 * Messages of the plugin and of Qt on standard error.
 */
#pragma once

#include <QString>

namespace AnimText::cli {

/**
 * Prints each message once, and none of those about the desktop session, which nothing here needs.
 */
void InstallMessages();

/** The error where there is no display to open a window on. */
QString NoDisplay();

/** From now on prints no message. */
void SuppressMessages();

} // namespace AnimText::cli
