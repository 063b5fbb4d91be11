/**
 * @file
 * The messages between the studio and its worker processes.
 */
#ifndef ANIMTEXT_MESSAGES_STUDIO_H
#define ANIMTEXT_MESSAGES_STUDIO_H

#include "studio/worker/timing.h"

#include <QByteArray>
#include <QDataStream>
#include <QImage>
#include <QMetaType>
#include <QPair>
#include <QString>
#include <QVector>

namespace AnimText {

enum class Message : quint8 {
    // to the worker
    Load,    ///< LoadOrder
    Play,    ///< first and last requested tick, as qint32
    Measure, ///< LoadOrder; answered by Measured
    // from the worker
    Ready,    ///< QString: why the plugin cannot be loaded; empty on success
    Loaded,   ///< quint32 generation, QString: why the scene cannot be played
    Picture,  ///< TickPicture
    Measured, ///< quint32 generation, Timing
    Idle,     ///< quint32 generation: all requested pictures have been sent
};

/** A scene to play. */
struct LoadOrder
{
    quint32 generation = 0; ///< repeated in the answers
    QByteArray scene;       ///< the text of a scene file
    QString path;           ///< the file that the scene's file names are relative to
    bool schedule = false;  ///< page by page for the planned times, as the host plays
    bool calls = false;     ///< whether to record the device calls
    QVector<QPair<qint32, qint32>> faults; ///< operation and number of the call that fails
};

/** The display after a tick. */
struct TickPicture
{
    quint32 generation = 0;
    qint32 tick = 0;
    QImage picture;   ///< null if it equals that of the previous tick
    QByteArray calls; ///< device calls, one line of JSON each
};

QDataStream& operator<<(QDataStream& stream, const LoadOrder& order);
QDataStream& operator>>(QDataStream& stream, LoadOrder& order);
QDataStream& operator<<(QDataStream& stream, const TickPicture& picture);
QDataStream& operator>>(QDataStream& stream, TickPicture& picture);

/** A message with its length in front, ready for a pipe. */
template <typename... Parts>
QByteArray Packed(Message kind, const Parts&... parts)
{
    QByteArray body;
    QDataStream stream(&body, QIODevice::WriteOnly);
    stream << quint8(kind);
    (void)(stream << ... << parts);
    QByteArray length;
    QDataStream(&length, QIODevice::WriteOnly) << quint32(body.size());
    return length + body;
}

/** Removes the first complete message from @p bytes and returns its kind and content. */
bool TakeMessage(QByteArray* bytes, Message* kind, QByteArray* body);

template <typename... Parts>
void Unpack(const QByteArray& body, Parts*... parts)
{
    QDataStream stream(body);
    (void)(stream >> ... >> *parts);
}

} // namespace AnimText

Q_DECLARE_METATYPE(AnimText::TickPicture)
Q_DECLARE_METATYPE(AnimText::LoadOrder)

#endif
