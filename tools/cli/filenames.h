/**
 * @file
 * Names of files that are no UTF-8, as old disks have them.
 */
#ifndef ANIMTEXT_FILENAMES_H
#define ANIMTEXT_FILENAMES_H

#include <QString>

namespace AnimText {

/**
 * From now on names of files, the program's words and its messages are UTF-8, also where no locale
 * is set, as in containers; and bytes that are no UTF-8 come through a QString unchanged. With Qt 6
 * files of such names cannot be opened.
 */
void KeepAllFileNames();

/** A word of the command line. */
QString TextOfWord(const char* word);

/** Whether @p text came from UTF-8 alone. */
bool IsUtf8(const QString& text);

} // namespace AnimText

#endif
