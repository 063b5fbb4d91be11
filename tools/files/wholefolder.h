/**
 * @file
 * A folder that appears whole or not at all.
 */
#ifndef ANIMTEXT_WHOLEFOLDER_H
#define ANIMTEXT_WHOLEFOLDER_H

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace AnimText {

/** Stands under another name beside its place until it is finished, and goes away unless it is. */
class WholeFolder
{
public:
    explicit WholeFolder(const QString& path);

    QString Path() const { return path; }

    /** The files of a folder, as paths in it, that an earlier command wrote and may replace. */
    using OwnFiles = std::function<QStringList(const QDir&)>;

    /**
     * Each answers false on failure, with one line in @p error. A folder that holds anything except
     * @p ownFiles stays as it is; Finish() looks again, for others write too.
     */
    bool Open(const OwnFiles& ownFiles, QString* error);
    /** @param name of a file, with at most one folder before it */
    bool Add(const QString& name, const QByteArray& content, QString* error);
    bool Finish(QString* error);

    /** What all its files take. */
    qint64 Bytes() const { return bytes; }

private:
    bool IsReplaceable(const QString& at, QString* error) const;

    QString path;
    OwnFiles ownFiles;
    std::unique_ptr<QTemporaryDir> folder;
    qint64 bytes = 0;
};

} // namespace AnimText

#endif
