#include "film/videofile.h"

#include "files/wholefile.h"
#include "film/filmcheck.h"

#include <QFileInfo>

#include <algorithm>

namespace AnimText {

namespace {

constexpr qint64 mostHeld = 64 << 20; // bytes of pictures that ffmpeg may hold for a palette
constexpr int samples = 256;          // pictures of a longer film that its palette is made from

QStringList Words(const char* words)
{
    return QString::fromLatin1(words).split(QLatin1Char(' '));
}

/** One palette for all, from what @p palette takes and @p pictures are painted with. */
QStringList GifEncoding(const QString& palette, const QString& pictures, bool transparent)
{
    return {QStringLiteral("-filter_complex"),
            QStringLiteral("%1palettegen=reserve_transparent=%2[p];%3[p]paletteuse="
                           "alpha_threshold=128")
                .arg(palette)
                .arg(transparent ? 1 : 0)
                .arg(pictures),
            QStringLiteral("-loop"), QStringLiteral("0")};
}

bool HasColour(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const bool grey = std::all_of(row, row + picture.width(), [](QRgb pixel) {
            return ((pixel >> 8 ^ pixel) & 0xFFFF) == 0; // red is green and green is blue
        });
        if (!grey)
            return true;
    }
    return false;
}

} // namespace

VideoFile::VideoFile(const QString& path, const QString& kind, const GoOn& goOn, int patience)
    : path(QFileInfo(path).absoluteFilePath())
    , kind(kind)
    , goOn(goOn)
    , patience(patience)
    , encoder(goOn, patience)
{
}

/** The palette of a GIF is known when all pictures have been seen: too many are not held. */
bool VideoFile::IsSpooled() const
{
    return kind == QLatin1String("gif") &&
           qint64(format.size.width()) * format.size.height() * 4 * format.frames > mostHeld;
}

bool VideoFile::HalvesColours() const
{
    const bool video = kind == QLatin1String("mp4") || kind == QLatin1String("webm");
    return video && !format.lossless;
}

QStringList VideoFile::Encoding() const
{
    if (IsSpooled())
        return {QStringLiteral("-c:v"), QStringLiteral("qtrle"), QStringLiteral("-pix_fmt"),
                format.transparent ? QStringLiteral("argb") : QStringLiteral("rgb24")};
    if (kind == QLatin1String("gif"))
        return GifEncoding(QStringLiteral("split[a][b];[a]"), QStringLiteral("[b]"),
                           format.transparent);
    if (kind == QLatin1String("apng"))
        return Words(format.transparent ? "-pix_fmt rgba -plays 0" : "-pix_fmt rgb24 -plays 0");
    if (kind == QLatin1String("webp"))
        return Words("-c:v libwebp_anim -pix_fmt bgra -lossless 1 -loop 0");
    if (kind == QLatin1String("mp4"))
        return Words(format.lossless
                         ? "-c:v libx264rgb -pix_fmt rgb24 -crf 0 -movflags +faststart"
                         : "-c:v libx264 -pix_fmt yuv420p -crf 16 -tune animation -movflags "
                           "+faststart");
    // The hidden pictures of alternate references lose the transparency.
    QStringList words = Words("-c:v libvpx-vp9 -b:v 0 -auto-alt-ref 0 -row-mt 1 -cpu-used 4");
    words += Words(format.lossless      ? "-pix_fmt gbrp -lossless 1"
                   : format.transparent ? "-pix_fmt yuva420p -crf 18"
                                        : "-pix_fmt yuv420p -crf 18");
    return words;
}

/** Every error names the film. */
bool VideoFile::Named(bool done, QString* error) const
{
    if (!done && *error != QLatin1String("interrupted") && !error->startsWith(path))
        *error = QStringLiteral("%1 cannot be written: %2").arg(path, *error);
    return done;
}

bool VideoFile::Start(FilmProgram* program, const QStringList& input, const QStringList& encoding,
                      const QString& muxer, const QTemporaryFile& output, QString* error)
{
    QStringList words = Words("-nostdin -v error");
    words += input + encoding;
    words += {QStringLiteral("-f"), muxer, QStringLiteral("-y"), output.fileName()};
    return program->Start(QStringLiteral("ffmpeg"), words, output.fileName(), error);
}

bool VideoFile::Open(const FilmFormat& wanted, QString* error)
{
    format = wanted;
    if (!FindTarget(path, &target, error))
        return false;
    const QString beside = UnfinishedName(target);
    for (QTemporaryFile* file : {&unfinished, &spool}) {
        file->setFileTemplate(beside);
        if ((file == &unfinished || IsSpooled()) && !file->open()) {
            *error = file->errorString();
            return Named(false, error);
        }
    }
    QStringList input = Words("-f rawvideo -framerate 500/33 -pix_fmt");
    input +=
        {format.transparent ? QStringLiteral("bgra") : QStringLiteral("bgr0"), QStringLiteral("-s"),
         QStringLiteral("%1x%2").arg(format.size.width()).arg(format.size.height()),
         QStringLiteral("-i"), QStringLiteral("pipe:0")};
    return Named(Start(&encoder, input, Encoding(), IsSpooled() ? QStringLiteral("mov") : kind,
                       IsSpooled() ? spool : unfinished, error),
                 error);
}

bool VideoFile::Add(int, const QImage& picture, QString* error)
{
    coloured = coloured || (HalvesColours() && HasColour(picture));
    return Named(encoder.Take(picture, error), error);
}

bool VideoFile::EncodeSpool(QString* error)
{
    FilmProgram second(goOn, patience);
    const int every = (format.frames + samples - 1) / samples;
    const QStringList input{QStringLiteral("-i"), spool.fileName(), QStringLiteral("-i"),
                            spool.fileName()};
    const QString sample = QStringLiteral("[0:v]select='not(mod(n\\,%1))',").arg(every);
    return Start(&second, input, GifEncoding(sample, QStringLiteral("[1:v]"), format.transparent),
                 kind, unfinished, error) &&
           second.Finish(error);
}

bool VideoFile::Finish(QString* error)
{
    FilmFacts facts;
    const bool whole = encoder.Finish(error) && (!IsSpooled() || EncodeSpool(error)) &&
                       ReadFilmFacts(unfinished.fileName(), kind, goOn, &facts, error) &&
                       HasWholeFilm(facts, format, error);
    if (!Named(whole, error) || !FindTarget(path, &target, error) ||
        !PutInPlace(unfinished.fileName(), target, 0666, error))
        return false;
    unfinished.setAutoRemove(false);
    return true;
}

QString VideoFile::Remark() const
{
    if (!coloured)
        return QString();
    return QStringLiteral("%1: such a film halves the sharpness of colors (4:2:0), which blurs "
                          "colored text; --lossless keeps every pixel")
        .arg(path);
}

} // namespace AnimText
