#include "film/videofile.h"

#include "files/wholefile.h"
#include "film/filmcheck.h"
#include "film/palette.h"

#include <QFileInfo>

namespace AnimText {

VideoFile::VideoFile(const QString& path, const FilmKind& kind, const GoOn& goOn, int patience)
    : path(QFileInfo(path).absoluteFilePath())
    , kind(kind)
    , goOn(goOn)
    , encoder(goOn, patience)
{
}

QStringList VideoFile::Arguments() const
{
    const bool isIndexed = palette.IsExact();
    QStringList words = FilmProgram::Reading(format.size, isIndexed            ? "pal8"
                                                          : format.transparent ? "bgra"
                                                                               : "bgr0");
    if (!isIndexed && kind.Has(FilmKind::Palette))
        words += QStringLiteral("-f rawvideo -pix_fmt bgra -s 16x16 -i data:image/raw;base64,%1 "
                                "-filter_complex paletteuse=alpha_threshold=128")
                     .arg(QString::fromLatin1(palette.chosen.toBase64()))
                     .split(QLatin1Char(' '));
    return words + kind.Encoding(format.transparent, format.lossless) +
           QStringList{QStringLiteral("-f"), kind.Name(), QStringLiteral("-y"),
                       unfinished.fileName()};
}

/** Every error names the film. */
bool VideoFile::Named(bool done, QString* error) const
{
    if (!done && *error != QLatin1String("interrupted") && !error->startsWith(path))
        *error = QStringLiteral("%1 cannot be written: %2").arg(path, *error);
    return done;
}

bool VideoFile::Open(const FilmFormat& wanted, QString* error)
{
    format = wanted;
    if (!FindTarget(path, &target, error))
        return false;
    unfinished.setFileTemplate(UnfinishedName(target));
    if (!unfinished.open()) {
        *error = unfinished.errorString();
        return Named(false, error);
    }
    const bool isStarted =
        (!kind.Has(FilmKind::Palette) || format.findPalette(&palette, error)) &&
        encoder.Start(QStringLiteral("ffmpeg"), Arguments(), unfinished.fileName(), error);
    return Named(isStarted, error);
}

bool VideoFile::Add(int frame, const QImage& picture, QString* error)
{
    if (!palette.IsExact())
        return Named(encoder.Take(picture, error), error);
    const QImage indexed = palette.exact.Indexed(WithoutHalfTones(picture));
    if (indexed.isNull())
        *error = QStringLiteral("picture %1 has other colors when it is painted again").arg(frame);
    return Named(!indexed.isNull() && encoder.Take(indexed, error), error);
}

bool VideoFile::Finish(QString* error)
{
    FilmFacts facts;
    const bool whole = encoder.Finish(error) &&
                       ReadFilmFacts(unfinished.fileName(), kind.Name(), goOn, &facts, error) &&
                       HasWholeFilm(facts, format, error);
    if (!Named(whole, error) || !FindTarget(path, &target, error) ||
        !PutInPlace(unfinished.fileName(), target, 0666, error))
        return false;
    unfinished.setAutoRemove(false);
    return true;
}

} // namespace AnimText
