/**
 * @file
 * The names of data files beside scenes, and which of them are unused.
 */
#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QStringList>

namespace AnimText::author {

/**
 * The name of a data file: the scene's name, a digest of @p content and a suffix for @p key, which
 * is "PathData" or "DescentVector". Different content has a different name, so a scene never finds
 * the data of another one. The scene's name is shortened if the whole would be too long for a file
 * system.
 */
QString DataFileName(const QString& scenePath, const QString& key, const QByteArray& content);

/** The files in @p folder, except links, whose names look like those of DataFileName(). */
QStringList DataFilesIn(const QDir& folder);

/** Unused data files. */
struct Unneeded
{
    QStringList names;
    QString doubt; ///< one line on why there is no certainty; names is empty then
};

/**
 * Returns the @p candidates in @p folder that can be removed: DataFileName() named them for their
 * present content, they are not write-protected, and no file names them in the folder, in its
 * subfolders (one level) or in its parent. All files are searched, since a hidden file or an
 * editor's backup may be the last copy of a scene.
 * Returns none if a file in the folder or below cannot be opened, looks like JSON but is not valid,
 * or is too large.
 */
Unneeded FindUnneeded(const QDir& folder, const QStringList& candidates);

} // namespace AnimText::author
