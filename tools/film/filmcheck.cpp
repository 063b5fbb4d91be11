#include "film/filmcheck.h"

#include "files/failure.h"
#include "files/wholefile.h"
#include "film/filmprogram.h"
#include "player/player.h"

#include <QFile>

#include <cmath>

namespace AnimText {

namespace {

constexpr int patience = 60 * 1000; // milliseconds

/** What a film's file contains. */
struct Facts
{
    QSize size;
    int frames = 0; // formats may store equal pictures once
    double milliseconds = 0;
};

quint32 Number(const QByteArray& bytes, int at, int count)
{
    quint32 number = 0;
    for (int i = count; i-- > 0;)
        number = number << 8 | uchar(bytes.at(at + i));
    return number;
}

/** Animated WebP is unknown to ffprobe. @return whether the file is complete */
bool ReadWebp(const QString& path, Facts* facts)
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
    return whole;
}

/** What ffprobe said. */
Facts FactsIn(const QByteArray& answer)
{
    Facts facts;
    for (const QByteArray& line : answer.split('\n')) {
        const QList<QByteArray> fields = line.trimmed().split(',') << "0"
                                                                   << "0";
        if (fields.at(0) == "stream")
            facts.size = QSize(fields.at(1).toInt(), fields.at(2).toInt());
        if (fields.at(0) != "packet")
            continue;
        ++facts.frames;
        facts.milliseconds = std::max(facts.milliseconds,
                                      (fields.at(1).toDouble() + fields.at(2).toDouble()) * 1000);
    }
    return facts;
}

} // namespace

void CheckFilm(const QString& film, const QString& written, const QString& kind,
               const FilmFormat& format, const GoOn& goOn)
{
    Facts facts;
    if (kind != QLatin1String("webp")) {
        FilmProgram probe(film, goOn, patience);
        probe.Start(QStringLiteral("ffprobe"),
                    QStringLiteral("-v error -select_streams v:0 -show_entries "
                                   "packet=pts_time,duration_time:stream=width,height -of csv")
                            .split(QLatin1Char(' ')) +
                        QStringList{written},
                    QString());
        facts = FactsIn(probe.Finish());
    } else if (!ReadWebp(written, &facts)) {
        throw Failure{
            FailedRun,
            CannotWrite(film, QStringLiteral("what was written is not a complete WebP file"))};
    }
    const double expected = double(format.frames) * tickLength;
    // A still has no time. Where equal pictures become one, the time shows it.
    const bool inTime =
        format.frames == 1 || std::abs(facts.milliseconds - expected) < tickLength * 0.9;
    if (facts.size == format.size && facts.frames > 0 && facts.frames <= format.frames && inTime)
        return;
    throw Failure{
        FailedRun,
        CannotWrite(film, QStringLiteral("the encoder wrote %1 pictures of %2 x %3 pixels in "
                                         "%4 s, where %5 of %6 x %7 in %8 s were due")
                              .arg(facts.frames)
                              .arg(facts.size.width())
                              .arg(facts.size.height())
                              .arg(facts.milliseconds / 1000)
                              .arg(format.frames)
                              .arg(format.size.width())
                              .arg(format.size.height())
                              .arg(expected / 1000))};
}

} // namespace AnimText
