/**
 * @file
 * The packets of the three protocols. DDP: 3waylabs' Distributed Display Protocol. E1.31: ANSI
 * E1.31-2018, "streaming ACN". Art-Net: Artistic Licence's Art-Net 4.
 */
#ifndef ANIMTEXT_PACKETS_H
#define ANIMTEXT_PACKETS_H

#include "lights/controller.h"

#include <QByteArray>
#include <QHostAddress>
#include <QVector>

namespace AnimText {

struct Packet
{
    QByteArray bytes;
    QHostAddress group; ///< the multicast group that it goes to; null: the controller
};

/** Makes the packets of one controller and counts their sequence. */
class PacketMaker
{
public:
    explicit PacketMaker(const Controller& controller);

    /**
     * The packets that show @p channels, the one that makes them visible last. With @p isLast,
     * E1.31 also tells the controller that the stream ends.
     */
    QVector<Packet> Picture(const QByteArray& channels, bool isLast = false);

private:
    QVector<Packet> Ddp(const QByteArray& channels);
    QVector<Packet> E131(const QByteArray& channels, bool isLast);
    QVector<Packet> ArtNet(const QByteArray& channels);
    QVector<QByteArray> Universes(const QByteArray& channels) const;
    QHostAddress Group(int universe) const;

    Controller controller;
    QByteArray component; // E1.31: 16 bytes by which a receiver knows the sender again
    int sequence = 0;
};

} // namespace AnimText

#endif
