#include "film/filmcheck.h"

#include "film/filmprogram.h"
#include "player/player.h"

#include <QFile>
#include <QtEndian>

#include <cmath>

namespace AnimText {

namespace {

constexpr int patience = 60 * 1000; // milliseconds

quint32 Number(const QByteArray& bytes, int at, int count)
{
    quint32 number = 0;
    for (int i = count; i-- > 0;)
        number = number << 8 | uchar(bytes.at(at + i));
    return number;
}

/** Animated WebP is unknown to ffprobe. */
bool ReadWebp(const QString& path, FilmFacts* facts, QString* error)
{
    QFile file(path);
    bool whole = file.open(QIODevice::ReadOnly);
    const QByteArray head = file.read(12);
    whole = whole && head.size() == 12 && head.startsWith("RIFF") && head.endsWith("WEBP") &&
            Number(head, 4, 4) + 8LL == file.size();
    for (qint64 at = 12; whole && at < file.size();) {
        whole = file.seek(at);
        const QByteArray chunk = file.read(24).leftJustified(24, '\0');
        const quint32 size = Number(chunk, 4, 4);
        if (chunk.startsWith("VP8X"))
            facts->size = QSize(int(Number(chunk, 12, 3)) + 1, int(Number(chunk, 15, 3)) + 1);
        if (chunk.startsWith("ANMF")) {
            ++facts->frames;
            facts->milliseconds += Number(chunk, 20, 3);
        }
        if (chunk.startsWith("VP8L")) { // a still
            ++facts->frames;
            facts->size = QSize(int(Number(chunk, 9, 2) & 0x3FFF) + 1,
                                int(Number(chunk, 10, 3) >> 6 & 0x3FFF) + 1);
        }
        at += 8 + qint64(size) + size % 2;
        whole = whole && at <= file.size();
    }
    if (!whole)
        *error = QStringLiteral("what was written is not a complete WebP file");
    return whole;
}

} // namespace

bool ReadFilmFacts(const QString& path, const QString& kind, const GoOn& goOn, FilmFacts* facts,
                   QString* error)
{
    *facts = FilmFacts();
    if (kind == QLatin1String("webp"))
        return ReadWebp(path, facts, error);
    FilmProgram probe(goOn, patience);
    const QStringList words{QStringLiteral("-v"),
                            QStringLiteral("error"),
                            QStringLiteral("-select_streams"),
                            QStringLiteral("v:0"),
                            QStringLiteral("-show_entries"),
                            QStringLiteral("packet=pts_time,duration_time:stream=width,height"),
                            QStringLiteral("-of"),
                            QStringLiteral("csv"),
                            path};
    if (!probe.Start(QStringLiteral("ffprobe"), words, QString(), error) || !probe.Finish(error))
        return false;
    for (const QByteArray& line : probe.Answer().split('\n')) {
        const QList<QByteArray> fields = line.trimmed().split(',') << "0"
                                                                   << "0";
        if (fields.at(0) == "stream")
            facts->size = QSize(fields.at(1).toInt(), fields.at(2).toInt());
        if (fields.at(0) != "packet")
            continue;
        ++facts->frames;
        facts->milliseconds = std::max(facts->milliseconds,
                                       (fields.at(1).toDouble() + fields.at(2).toDouble()) * 1000);
    }
    return true;
}

bool HasWholeFilm(const FilmFacts& facts, const FilmFormat& format, QString* error)
{
    const double expected = double(format.frames) * tickLength;
    // A still has no time. Where equal pictures become one, the time shows it.
    const bool inTime =
        format.frames == 1 || std::abs(facts.milliseconds - expected) < tickLength * 0.9;
    if (facts.size == format.size && facts.frames > 0 && facts.frames <= format.frames && inTime)
        return true;
    *error = QStringLiteral("the encoder wrote %1 pictures of %2 x %3 pixels in %4 s, where %5 of "
                            "%6 x %7 in %8 s were due")
                 .arg(facts.frames)
                 .arg(facts.size.width())
                 .arg(facts.size.height())
                 .arg(facts.milliseconds / 1000)
                 .arg(format.frames)
                 .arg(format.size.width())
                 .arg(format.size.height())
                 .arg(expected / 1000);
    return false;
}

} // namespace AnimText
