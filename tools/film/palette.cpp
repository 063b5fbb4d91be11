#include "film/palette.h"

#include "film/filmprogram.h"

namespace AnimText {

namespace {

constexpr int samples = 256; // pictures that ffmpeg chooses colors from

/** Leaves the palette empty when the pictures have too many colors. */
bool CountColors(Film* film, const QVector<int>& wanted, const FilmWatch& watch, Palette* palette,
                 QString* error)
{
    bool tooMany = false;
    const auto count = [&](int frame, const QImage& picture) {
        if (!watch(FilmStage::Colors, frame - wanted.first() + 1, wanted.size())) {
            *error = QStringLiteral("interrupted");
            return false;
        }
        tooMany = palette->exact.Indexed(WithoutHalfTones(picture)).isNull();
        return !tooMany;
    };
    const bool isPlayed = film->Play(wanted, count, error);
    if (tooMany)
        palette->exact = ColorTable();
    return isPlayed || tooMany;
}

bool ChooseColors(Film* film, const QVector<int>& wanted, const FilmWatch& watch, Palette* palette,
                  QString* error)
{
    QVector<int> some;
    const int every = (wanted.size() + samples - 1) / samples;
    for (int i = 0; i < wanted.size(); i += every)
        some.append(wanted.at(i));
    const auto goOn = [&] { return watch(FilmStage::Colors, wanted.size(), wanted.size()); };
    FilmProgram chooser(goOn);
    const QStringList choosing =
        QStringLiteral("-vf palettegen=reserve_transparent=%1 -f rawvideo -pix_fmt bgra pipe:1")
            .arg(film->IsTransparent() ? 1 : 0)
            .split(QLatin1Char(' '));
    const auto take = [&](int, const QImage& picture) { return chooser.Take(picture, error); };
    if (!chooser.Start(QStringLiteral("ffmpeg"),
                       FilmProgram::Reading(film->FrameSize(), "bgra") + choosing, QString(),
                       error) ||
        !film->Play(some, take, error) || !chooser.Finish(error))
        return false;
    palette->chosen = chooser.Answer();
    return true;
}

} // namespace

QImage WithoutHalfTones(const QImage& picture)
{
    if (!picture.hasAlphaChannel())
        return picture;
    QImage plain = picture;
    for (int y = 0; y < plain.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(plain.scanLine(y));
        for (int x = 0; x < plain.width(); ++x)
            row[x] = qAlpha(row[x]) < 128 ? 0 : row[x] | 0xFF000000;
    }
    return plain;
}

bool FindPalette(Film* film, const QVector<int>& wanted, const FilmWatch& watch, Palette* palette,
                 QString* error)
{
    return CountColors(film, wanted, watch, palette, error) &&
           (palette->IsExact() || ChooseColors(film, wanted, watch, palette, error));
}

} // namespace AnimText
