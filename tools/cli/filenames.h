/**
 * @file
 * File names that are not UTF-8, as on old disks.
 */
#ifndef ANIMTEXT_FILENAMES_H
#define ANIMTEXT_FILENAMES_H

#include <QString>

namespace AnimText {

/**
 * Makes file names, arguments and messages UTF-8 even where no locale is set, as in containers.
 * Bytes that are not UTF-8 survive in a QString. Qt 6 cannot open files with such names.
 */
void KeepAllFileNames();

/** An argument of main(). */
QString TextOfWord(const char* word);

/** Whether all of @p text came from valid UTF-8. */
bool IsUtf8(const QString& text);

} // namespace AnimText

#endif
