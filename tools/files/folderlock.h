/**
 * @file
 * The folder of a scene, held by one writer at a time.
 */
#ifndef ANIMTEXT_FOLDERLOCK_H
#define ANIMTEXT_FOLDERLOCK_H

#include <QLockFile>
#include <QString>

namespace AnimText {

/**
 * Scenes of one folder may share data files, so whoever changes one holds the whole folder. The
 * lock is a file ".animtext.lock" in it. One that a killed writer left behind is recognised by its
 * process, or by its age, and taken over.
 */
class FolderLock
{
public:
    /** Holds @p folder once Take() has succeeded, as long as it lives. */
    explicit FolderLock(const QString& folder);

    /** Waits for its turn, a minute at most. On failure @p error has one line on it. */
    bool Take(QString* error);

    /** Names that were made, replaced or removed in the folder reach the disk. */
    void Sync() const;

private:
    const QString folder;
    QLockFile file;
};

} // namespace AnimText

#endif
