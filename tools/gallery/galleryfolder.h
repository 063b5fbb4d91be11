/**
 * @file
 * The folder that a gallery is: it appears whole or not at all.
 */
#ifndef ANIMTEXT_GALLERYFOLDER_H
#define ANIMTEXT_GALLERYFOLDER_H

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace AnimText {

/** A folder under another name beside its place until it is finished. */
class GalleryFolder
{
public:
    explicit GalleryFolder(const QString& path);

    /**
     * Each answers false on failure, with one line in @p error. A folder that is there is replaced
     * only if it is empty or a gallery.
     */
    bool Open(QString* error);
    /** @param name of a file, with at most one folder before it */
    bool Add(const QString& name, const QByteArray& content, QString* error);
    bool Finish(QString* error);

    qint64 Bytes() const { return bytes; }

private:
    QString path;
    std::unique_ptr<QTemporaryDir> folder;
    qint64 bytes = 0;
};

} // namespace AnimText

#endif
