/**
 * @file
 * Files that appear complete or not at all. They are written under another name in the same folder.
 * If the writer is killed, the next writer in that folder removes the unfinished file.
 */
#pragma once

#include "files/failure.h"

#include <QByteArray>
#include <QString>

class QFile;
class QTemporaryDir;

namespace AnimText::files {

constexpr int longestName = 255; ///< bytes of a file's name, in Linux' file systems

/** The longest start of @p name that takes at most @p most bytes in a file system. */
QString Shortened(const QString& name, int most);

/**
 * A template for QTemporaryFile or QTemporaryDir, to be renamed to @p path when finished. Removes
 * unfinished files in the folder whose processes on this machine were killed.
 */
QString UnfinishedName(const QString& path);

/**
 * Why the file or folder at @p path is write-protected, or empty. Also respects the mode for root,
 * who could change everything.
 */
QString WriteProtection(const QString& path);

/**
 * Follows symbolic links from @p path to the file to write, which may not exist yet. Throws Failure
 * if something other than a writable regular file exists there.
 */
QString FindTarget(const QString& path);

/** The target of @p path if it is a symbolic link, else @p path. */
QString RealPath(const QString& path);

/** What the system says of the last call that failed. */
QString SystemError();

/** "PATH cannot be written: PROBLEM" */
QString CannotWrite(const QString& path, const QString& problem);

/** Makes the folder @p path and its parents; throws Failure. */
void MakeFolder(const QString& path);

/** A template for a QTemporaryDir in TMPDIR, or in /tmp where that is not set. */
QString TemporaryName();

/**
 * Throws Failure if @p folder could not be created. Check this first: in a folder without a name,
 * files would go to the current folder.
 */
void CheckMade(const QTemporaryDir& folder);

/** Reads the rest of @p file, up to @p most bytes, in pieces as pipes deliver them. */
QByteArray ReadAtMost(QFile* file, qint64 most);

/** Appends @p content to an open, unbuffered file. @return why that failed, or empty */
QString WriteAll(QFile* file, const QByteArray& content);

/**
 * Writes @p content to the disk, then replaces the file at @p path if FindTarget() allows it. On
 * failure throws and leaves an existing file as it was.
 */
void WriteWhole(const QString& path, const QByteArray& content);

/**
 * Writes the temporary file or folder @p from to the disk and renames it to @p to. It gets the
 * permissions of what it replaces; otherwise @p mode less the process's umask. Throws Failure.
 */
void PutInPlace(const QString& from, const QString& to, unsigned mode);

} // namespace AnimText::files
