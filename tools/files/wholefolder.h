/**
 * @file
 * A folder that appears complete or not at all.
 */
#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace AnimText::files {

/** Written under another name beside its place until Finish(); otherwise removed. */
class WholeFolder
{
public:
    explicit WholeFolder(const QString& path);

    QString Path() const { return path; }

    /** Returns the files, as paths within a folder, that an earlier command wrote there. */
    using OwnFiles = std::function<QStringList(const QDir&)>;

    /**
     * Each throws Failure. An existing folder is replaced only if it holds nothing except
     * @p ownFiles; Finish() checks this again.
     */
    void Open(const OwnFiles& ownFiles);
    /** @param name of a file, with at most one folder before it */
    void Add(const QString& name, const QByteArray& content);
    void Finish();

    /** Size of all files added. */
    qint64 Bytes() const { return bytes; }

private:
    void CheckReplaceable() const;

    QString path;
    OwnFiles ownFiles;
    std::unique_ptr<QTemporaryDir> folder;
    qint64 bytes = 0;
};

} // namespace AnimText::files
