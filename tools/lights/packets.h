/**
 * @file
 * The packets of the three protocols. DDP: 3waylabs' Distributed Display Protocol. E1.31: ANSI
 * E1.31-2018, "streaming ACN". Art-Net: Artistic License's Art-Net 4.
 */
#pragma once

#include "lights/controller.h"

#include <QByteArray>
#include <QHostAddress>
#include <QVector>

namespace AnimText::lights {

struct Packet
{
    QByteArray bytes;
    QHostAddress group; ///< multicast group to send to; null: the controller
};

/** Makes the packets for one controller, with sequence numbers. */
class PacketMaker
{
public:
    explicit PacketMaker(const Controller& controller);

    /**
     * The packets for @p channels; the last one makes them visible. With @p isLast, E1.31 also ends
     * the stream.
     */
    QVector<Packet> Picture(const QByteArray& channels, bool isLast = false);

private:
    QVector<Packet> Ddp(const QByteArray& channels);
    QVector<Packet> E131(const QByteArray& channels, bool isLast);
    QVector<Packet> ArtNet(const QByteArray& channels);
    QVector<QByteArray> Universes(const QByteArray& channels) const;

    Controller controller;
    QByteArray component; // E1.31: the sender's identifier, 16 bytes
    int sequence = 0;
};

} // namespace AnimText::lights
