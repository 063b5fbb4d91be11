/**
 * @file
 * One picture as a PNG.
 */
#ifndef ANIMTEXT_STILLFILE_H
#define ANIMTEXT_STILLFILE_H

#include "film/filmfile.h"

#include <QByteArray>

namespace AnimText {

/** Whether a PNG is made quickly or small. */
enum class PngEffort { Fast, Small };

/** @p picture as a PNG; without transparency unless it is wanted. */
QByteArray PngOf(QImage picture, bool transparent, PngEffort effort = PngEffort::Fast);

/** Whether the file at @p path has the mark that PngOf() leaves. */
bool IsOurPng(const QString& path);

/** Writes @p png, whole or not at all, to @p path. */
bool WritePng(const QString& path, const QByteArray& png, QString* error);

class StillFile : public FilmFile
{
public:
    explicit StillFile(const QString& path);

    bool Open(const FilmFormat& format, QString* error) override;
    bool Add(int frame, const QImage& picture, QString* error) override;
    bool Finish(QString* error) override;

private:
    QString path;
    bool transparent = false;
    QByteArray png;
};

} // namespace AnimText

#endif
