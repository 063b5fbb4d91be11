#include "files/failure.h"
#include "files/wholefile.h"
#include "film/filmcheck.h"
#include "film/filmprogram.h"

#include <QFileInfo>
#include <QSet>
#include <QTemporaryFile>

namespace AnimText::film {

namespace {

QStringList Words(const QString& words)
{
    return words.split(QLatin1Char(' '));
}

constexpr int paletteSize = 256; // colors

/** Adds the colors of @p picture to @p known, up to too many. @return whether any is new */
bool HasNewColors(const QImage& picture, QSet<QRgb>* known)
{
    const int before = known->size();
    for (int y = 0; y < picture.height() && known->size() <= paletteSize; ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            if (x == 0 || row[x] != row[x - 1])
                known->insert(row[x]);
    }
    return known->size() > before || before > paletteSize;
}

/** 256 colors, each a QRgb: all colors of the film, if those are not more. */
QByteArray Palette(const QString& path, const FilmFormat& format, const PlayPictures& play,
                   const GoOn& goOn, int patience)
{
    FilmProgram chooser(path, goOn, patience, "ffmpeg",
                        FilmProgram::Reading(format.size, "bgra") +
                            Words(QStringLiteral("-vf palettegen=reserve_transparent=%1 "
                                                 "-f rawvideo -pix_fmt bgra pipe:1")
                                      .arg(format.transparent ? 1 : 0)));
    // The choice among few colors takes long, and does not depend on how often each is seen.
    QSet<QRgb> known;
    play(FilmStage::Colors, [&](int, const QImage& picture) {
        if (HasNewColors(picture, &known))
            chooser.Take(picture);
    });
    return chooser.Finish();
}

QStringList WithPalette(const QByteArray& palette)
{
    const auto* colors = reinterpret_cast<const QRgb*>(palette.constData());
    const QSet<QRgb> distinct(colors, colors + palette.size() / int(sizeof(QRgb)));
    // Where there is room left, every color is there, and looking for mixtures only takes time.
    const QString dither = QLatin1String(distinct.size() < 255 ? "none" : "sierra2_4a");
    return Words(QStringLiteral("-f rawvideo -pix_fmt bgra -s 16x16 -i "
                                "data:image/raw;base64,%1 "
                                "-filter_complex paletteuse=alpha_threshold=128:dither=%2")
                     .arg(QString::fromLatin1(palette.toBase64()), dither));
}

} // namespace

/**
 * ffmpeg takes the raw pictures on its standard input and writes under another name in the same
 * folder; the file gets its name when a check has found the complete film.
 */
void WriteVideo(const QString& path, const FilmKind& kind, const FilmFormat& format,
                const PlayPictures& play, const GoOn& goOn, int patience)
{
    const QString place = QFileInfo(path).absoluteFilePath();
    QTemporaryFile unfinished(files::UnfinishedName(files::FindTarget(place)));
    if (!unfinished.open())
        throw files::Failure{files::FailedRun, files::CannotWrite(place, unfinished.errorString())};
    QStringList words = FilmProgram::Reading(format.size, format.transparent ? "bgra" : "bgr0");
    if (kind.Has(FilmKind::Palette))
        words += WithPalette(Palette(place, format, play, goOn, patience));
    words += kind.Encoding(format.transparent, format.lossless);
    words += {"-f", kind.Name(), "-y", unfinished.fileName()};
    FilmProgram encoder(place, goOn, patience, "ffmpeg", words, unfinished.fileName());
    play(FilmStage::Pictures, [&](int, const QImage& picture) { encoder.Take(picture); });
    encoder.Finish();
    CheckFilm(place, unfinished.fileName(), kind.Name(), format, goOn);
    files::PutInPlace(unfinished.fileName(), files::FindTarget(place), 0666);
    unfinished.setAutoRemove(false);
}

} // namespace AnimText::film
