/**
 * @file
 * A lock on a folder of scenes.
 */
#pragma once

#include <QLockFile>
#include <QString>

namespace AnimText::files {

/**
 * Scenes in a folder may share data files, so a writer locks the whole folder with a file
 * ".animtext.lock" in it. A lock that a killed writer left is recognized by its process or its age
 * and taken over.
 */
class FolderLock
{
public:
    /** Holds the lock from Take() until destruction. */
    explicit FolderLock(const QString& folder);

    /** Waits up to a minute; throws Failure. */
    void Take();

    /** Writes the folder's directory entries to the disk. */
    void Sync() const;

private:
    const QString folder;
    QLockFile file;
};

} // namespace AnimText::files
