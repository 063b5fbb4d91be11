/**
 * @file
 * What the studio and its worker processes say to one another.
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
    Play,    ///< first and last tick whose pictures are wanted, as qint32
    Measure, ///< LoadOrder; Timing comes back
    // from the worker
    Ready,    ///< QString: why the plugin cannot be loaded; empty when it is
    Loaded,   ///< quint32 generation, QString: why it cannot be played
    Picture,  ///< TickPicture
    Measured, ///< quint32 generation, Timing
    Idle,     ///< quint32 generation: all that was wanted has been sent
};

/** A scene to be played. */
struct LoadOrder
{
    quint32 generation = 0;                ///< comes back with whatever is made of it
    QByteArray scene;                      ///< the text of a scene file
    QString path;                          ///< that its file names are relative to
    bool schedule = false;                 ///< as the host plays it, by the times that it is told
    bool calls = false;                    ///< whether the device's calls are wanted
    QVector<QPair<qint32, qint32>> faults; ///< operation and which of its calls fails
};

/** What is on the display after a tick. */
struct TickPicture
{
    quint32 generation = 0;
    qint32 tick = 0;
    QImage picture;   ///< null when it is that of the tick before
    QByteArray calls; ///< of the device, a line of JSON each
};

QDataStream& operator<<(QDataStream& stream, const LoadOrder& order);
QDataStream& operator>>(QDataStream& stream, LoadOrder& order);
QDataStream& operator<<(QDataStream& stream, const TickPicture& picture);
QDataStream& operator>>(QDataStream& stream, TickPicture& picture);

/** A message with its length in front, as it goes through a pipe. */
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

/** Takes the first whole message out of @p bytes: its kind and what follows. */
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
