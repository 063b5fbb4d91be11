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
     * Each returns false on failure, with one line in @p error. An existing folder is replaced only
     * if it holds nothing except @p ownFiles; Finish() checks this again.
     */
    bool Open(const OwnFiles& ownFiles, QString* error);
    /** @param name of a file, with at most one folder before it */
    bool Add(const QString& name, const QByteArray& content, QString* error);
    bool Finish(QString* error);

    /** Size of all files added. */
    qint64 Bytes() const { return bytes; }

private:
    bool IsReplaceable(const QString& at, QString* error) const;

    QString path;
    OwnFiles ownFiles;
    std::unique_ptr<QTemporaryDir> folder;
    qint64 bytes = 0;
};

} // namespace AnimText::files
