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

    /**
     * Each answers false on failure, with one line in @p error.
     * @param inTheWay of a folder that is there, the name of something that must not be lost; empty
     *                 when the whole folder may be replaced
     */
    bool Open(const std::function<QString(const QDir&)>& inTheWay, QString* error);
    /** @param name of a file, with at most one folder before it */
    bool Add(const QString& name, const QByteArray& content, QString* error);
    bool Finish(QString* error);

    /** What all its files take. */
    qint64 Bytes() const { return bytes; }

private:
    QString path;
    std::unique_ptr<QTemporaryDir> folder;
    qint64 bytes = 0;
};

} // namespace AnimText

#endif
