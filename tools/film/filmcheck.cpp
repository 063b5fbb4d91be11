#include "film/filmcheck.h"

#include "files/failure.h"
#include "files/wholefile.h"
#include "film/filmprogram.h"
#include "player/player.h"

#include <QFile>

#include <cmath>

namespace AnimText::film {

namespace {

constexpr int patience = 60 * 1000; // milliseconds

/** What a film's file contains. */
struct Facts
{
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
    file.open(QIODevice::ReadOnly);
    const QByteArray head = file.read(12).leftJustified(12, '\0');
    bool whole =
        head.startsWith("RIFF") && head.endsWith("WEBP") && Number(head, 4, 4) + 8LL == file.size();
    for (qint64 at = 12; whole && at < file.size();) {
        file.seek(at);
        const QByteArray chunk = file.read(24).leftJustified(24, '\0');
        const bool isStill = chunk.startsWith("VP8L");
        if (isStill || chunk.startsWith("ANMF"))
            ++facts->frames;
        if (chunk.startsWith("ANMF"))
            facts->milliseconds += Number(chunk, 20, 3);
        const qint64 size = Number(chunk, 4, 4);
        at += 8 + size + size % 2;
        whole = at <= file.size();
    }
    return whole;
}

/** What ffprobe said of each packet: "packet,START,LENGTH", in seconds. */
Facts FactsIn(const QByteArray& answer)
{
    Facts facts;
    for (const QByteArray& line : answer.split('\n')) {
        const QList<QByteArray> fields = line.split(',') << QByteArray() << QByteArray();
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
        QStringList words =
            QStringLiteral(
                "-v error -select_streams v:0 -show_entries packet=pts_time,duration_time -of csv")
                .split(QLatin1Char(' '));
        facts = FactsIn(FilmProgram(film, goOn, patience, "ffprobe", words << written).Finish());
    } else {
        files::FailUnless(ReadWebp(written, &facts),
                          files::CannotWrite(film, "what was written is not a complete WebP file"));
    }
    const double expected = double(format.frames) * player::tickLength;
    // A still has no time. Where equal pictures become one, the time shows it.
    const bool inTime =
        format.frames == 1 || std::abs(facts.milliseconds - expected) < player::tickLength * 0.9;
    files::FailUnless(
        facts.frames > 0 && facts.frames <= format.frames && inTime,
        files::CannotWrite(film, QStringLiteral("the encoder wrote %1 pictures in %2 s, where %3 "
                                                "in %4 s were due")
                                     .arg(facts.frames)
                                     .arg(facts.milliseconds / 1000)
                                     .arg(format.frames)
                                     .arg(expected / 1000)));
}

} // namespace AnimText::film
