/**
 * @file
 * The messages between the studio and its worker processes.
 */
#pragma once

#include "studio/worker/timing.h"

#include <QByteArray>
#include <QDataStream>
#include <QImage>
#include <QPair>
#include <QString>
#include <QVector>

#include <tuple>

namespace AnimText::studio::worker {

/** Which part of a sign to play, and how. */
struct Part
{
    qint32 page = -1;      ///< negative for all pages
    bool schedule = false; ///< page by page for the planned times, as the host plays
    bool calls = false;    ///< records the device calls
    QVector<QPair<qint32, qint32>> faults{}; ///< operation and number of the call to make fail
};

/** To a worker: play a scene. It loads the scene if the generation is a new one. */
struct Order
{
    quint32 generation = 0; ///< from 1; repeated in the answers
    QByteArray scene;       ///< the text of a scene file
    QString path;           ///< the file that the scene's file names are relative to
    Part part;              ///< the scene has only its page
    bool measures = false;  ///< wants the times instead of pictures
    qint32 first = 0;       ///< the ticks whose pictures are wanted
    qint32 last = -1;
};

/** A picture that is sent as it is: to compress it would take longer. */
struct RawPicture : QImage
{
    RawPicture(const QImage& picture = QImage())
        : QImage(picture)
    {
    }
};

/** From a worker. */
struct Answer
{
    enum Kind {
        Ready,    ///< before any order; error: why the plugin cannot be loaded
        Loaded,   ///< error: why the scene cannot be played
        Picture,  ///< the display after a tick
        Measured, ///< the times, unless the scene cannot be played
        Idle,     ///< all ordered pictures have been sent
    };

    qint32 kind = Ready;
    quint32 generation = 0;
    QString error;
    qint32 tick = 0;    ///< of the picture; Idle: the last one ordered
    RawPicture picture; ///< null if it equals that of the previous tick
    QByteArray calls;   ///< device calls of the tick, one line of JSON each
    Timing timing;
};

/** What is sent of each structure. */
inline auto Fields(Part& part)
{
    return std::tie(part.page, part.schedule, part.calls, part.faults);
}
inline auto Fields(Order& order)
{
    return std::tie(order.generation, order.scene, order.path, order.part, order.measures,
                    order.first, order.last);
}
inline auto Fields(Answer& answer)
{
    return std::tie(answer.kind, answer.generation, answer.error, answer.tick, answer.picture,
                    answer.calls, answer.timing);
}
inline auto Fields(Timing& timing)
{
    return std::tie(timing.length, timing.isCut, timing.texts);
}
inline auto Fields(TextTime& text)
{
    return std::tie(text.ending, text.planned, text.actual, text.from, text.until, text.pages);
}

inline bool operator==(Part a, Part b)
{
    return Fields(a) == Fields(b);
}

inline QDataStream& operator<<(QDataStream& stream, const RawPicture& picture)
{
    stream << picture.size();
    stream.writeRawData(reinterpret_cast<const char*>(picture.constBits()),
                        int(picture.sizeInBytes()));
    return stream;
}

inline QDataStream& operator>>(QDataStream& stream, RawPicture& picture)
{
    QSize size;
    stream >> size;
    picture = size.isEmpty() ? QImage() : QImage(size, QImage::Format_ARGB32);
    stream.readRawData(reinterpret_cast<char*>(picture.bits()), int(picture.sizeInBytes()));
    return stream;
}

template <typename T, typename = decltype(Fields(std::declval<T&>()))>
QDataStream& operator<<(QDataStream& stream, T value)
{
    std::apply([&](auto&... field) { (void)(stream << ... << field); }, Fields(value));
    return stream;
}
template <typename T, typename = decltype(Fields(std::declval<T&>()))>
QDataStream& operator>>(QDataStream& stream, T& value)
{
    std::apply([&](auto&... field) { (void)(stream >> ... >> field); }, Fields(value));
    return stream;
}

/** A message with its length in front, ready for a pipe. */
template <typename T>
QByteArray Packed(const T& message)
{
    QByteArray body;
    QDataStream stream(&body, QIODevice::WriteOnly);
    stream << message;
    QByteArray length;
    QDataStream(&length, QIODevice::WriteOnly) << quint32(body.size());
    return length + body;
}

/** Removes the first message from @p bytes; returns false if it is not complete. */
template <typename T>
bool Take(QByteArray* bytes, T* message)
{
    quint32 length = 0;
    QDataStream stream(*bytes);
    stream >> length;
    if (stream.status() != QDataStream::Ok || stream.device()->bytesAvailable() < qint64(length))
        return false;
    stream >> *message;
    bytes->remove(0, int(sizeof length + length));
    return true;
}

} // namespace AnimText::studio::worker
