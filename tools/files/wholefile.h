/**
 * @file
 * Files that appear whole or not at all. They are made under another name in the same folder, which
 * a writer that is killed leaves behind; the next writer in that folder removes it.
 */
#ifndef ANIMTEXT_WHOLEFILE_H
#define ANIMTEXT_WHOLEFILE_H

#include <QByteArray>
#include <QString>

class QFile;
class QTemporaryDir;

namespace AnimText {

constexpr int longestName = 255; ///< bytes of a file's name, in Linux' file systems

/** The longest start of @p name that takes at most @p most bytes in a file system. */
QString Shortened(const QString& name, int most);

/**
 * The name under which what will be @p path is made: a template for QTemporaryFile or
 * QTemporaryDir. Removes what killed processes of this machine left in the folder.
 */
QString UnfinishedName(const QString& path);

/**
 * Why the file or folder at @p path must not be changed: what protects it, or empty. Its mode
 * decides that for root too, who could change everything.
 */
QString WriteProtection(const QString& path);

/**
 * Where a file that is written as @p path really goes: links are followed, also to a file that is
 * not there yet. Returns false, with one line in @p error, when what is there must stay: anything
 * except a regular file, and a file that is write-protected.
 */
bool FindTarget(const QString& path, QString* target, QString* error);

/** The file that @p path leads to where it is a symbolic link, else @p path itself. */
QString RealPath(const QString& path);

/** Makes the folder @p path and those above it; false, with one line in @p error, when it fails. */
bool MakeFolder(const QString& path, QString* error);

/** A template for a QTemporaryDir in TMPDIR, or in /tmp where that is not set. */
QString TemporaryName();

/**
 * Whether the system made @p folder, of that name; otherwise @p error has one line on it. Without
 * this, the names of files in it would be names in the current folder.
 */
bool IsMade(const QTemporaryDir& folder, QString* error);

/** What is left to read of @p file, @p most bytes at most: a pipe hands it over in pieces. */
QByteArray ReadAtMost(QFile* file, qint64 most);

/** Appends all of @p content to a file that is open and has nothing buffered; on failure answers
 * false with what the system says in @p problem. */
bool WriteAll(QFile* file, const QByteArray& content, QString* problem);

/**
 * Writes @p content to @p path, and to the disk, before it takes the place of a file that may be
 * there and that FindTarget() allows to replace. On failure answers false with one line in @p
 * error; what was there is then left.
 */
bool WriteWhole(const QString& path, const QByteArray& content, QString* error);

/**
 * Gives the temporary file or folder @p from the rights that people's own have, and the name @p to.
 * @p mode before the process's mask is taken off
 */
bool PutInPlace(const QString& from, const QString& to, unsigned mode, QString* error);

} // namespace AnimText

#endif
