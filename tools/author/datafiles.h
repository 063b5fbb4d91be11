/**
 * @file
 * The data files beside scenes: their names, and which of them nothing needs any more.
 */
#ifndef ANIMTEXT_DATAFILES_H
#define ANIMTEXT_DATAFILES_H

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QStringList>

namespace AnimText {

/**
 * The name for a data file of the scene at @p scenePath: the scene's own, a digest of @p content
 * and @p suffix. Other content has another name, so that a scene never meets the data of another.
 * The scene's name is cut where the whole would be too long for a file system.
 */
QString DataFileName(const QString& scenePath, const QByteArray& content, const QString& suffix);

/** The files in @p folder, links left out, whose names DataFileName() may have made. */
QStringList DataFilesIn(const QDir& folder);

/** Data files that nothing needs any more, or why none is certain. */
struct Unneeded
{
    QStringList names;
    QString doubt; ///< one line; when it is not empty, there are no names
};

/**
 * Those of @p candidates, files in @p folder, that can be removed. DataFileName() made such a file,
 * it still has that content, it is not write-protected, and no file names it in the folder, in the
 * folders directly below, or in the one above. What a file is called says nothing: a hidden file
 * or an editor's backup may be the last copy of a scene. JSON is searched in its strings and
 * everything else in its bytes. When something in the folder or below looks like JSON that cannot
 * be read, cannot be opened, or is too much to look at, everything stays.
 */
Unneeded FindUnneeded(const QDir& folder, const QStringList& candidates);

} // namespace AnimText

#endif
