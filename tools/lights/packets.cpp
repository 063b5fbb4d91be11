#include "lights/packets.h"

#include <QSysInfo>
#include <QUuid>

namespace AnimText::lights {

namespace {

constexpr int ddpData = 1440;        // bytes: 480 pixels, and the packet fits into Ethernet's 1500
constexpr int ddpVersion = 0x40;     // version 1
constexpr int ddpPush = 0x01;        // show the received data
constexpr int ddpRgb = 0x0B;         // three colors of 8 bits
constexpr int ddpDisplay = 1;        // the controller's standard output
constexpr int artVersion = 14;       // of the protocol
constexpr int streamTerminated = 64; // E1.31's option bit

/** @p value in @p bytes bytes, big-endian. */
QByteArray Number(int value, int bytes)
{
    QByteArray number;
    for (int i = bytes - 1; i >= 0; --i)
        number.append(char(value >> 8 * i & 0xFF));
    return number;
}

/** A layer of E1.31: flags 7 and the length, itself included, then the content. */
QByteArray Layer(const QByteArray& content)
{
    return Number(0x7000 | (content.size() + 2), 2) + content;
}

QByteArray Root(int vector, const QByteArray& component, const QByteArray& framing)
{
    return Number(0x0010, 2) + Number(0, 2) + QByteArray("ASC-E1.17\0\0\0", 12) +
           Layer(Number(vector, 4) + component + framing);
}

/** Art-Net's operation codes are little-endian. */
QByteArray ArtHead(int operation)
{
    return QByteArray("Art-Net\0", 8) + char(operation & 0xFF) + char(operation >> 8) +
           Number(artVersion, 2);
}

} // namespace

PacketMaker::PacketMaker(const Controller& controller)
    : controller(controller)
{
    // The same after a restart, or a receiver would merge this with the previous sender.
    static const QUuid space("{5f0d9d4e-6a43-4a4c-9c53-0d1f5b1a7e21}");
    component = QUuid::createUuidV5(space, QSysInfo::machineUniqueId() + controller.source.toUtf8())
                    .toRfc4122();
}

QVector<Packet> PacketMaker::Picture(const QByteArray& channels, bool isLast)
{
    switch (controller.protocol) {
    case Protocol::E131: return E131(channels, isLast);
    case Protocol::ArtNet: return ArtNet(channels);
    default: return Ddp(channels);
    }
}

QVector<Packet> PacketMaker::Ddp(const QByteArray& channels)
{
    QVector<Packet> packets;
    for (int from = 0; from < channels.size(); from += ddpData) {
        const QByteArray data = channels.mid(from, ddpData);
        const bool push = from + ddpData >= channels.size();
        sequence = sequence % 15 + 1; // 0 means that packets are not numbered
        packets.append({Number(ddpVersion | (push ? ddpPush : 0), 1) + Number(sequence, 1) +
                            Number(ddpRgb, 1) + Number(ddpDisplay, 1) +
                            Number(controller.channel - 1 + from, 4) + Number(data.size(), 2) +
                            data,
                        QHostAddress()});
    }
    return packets;
}

/** The channels of each universe; no pixel is split between two. */
QVector<QByteArray> PacketMaker::Universes(const QByteArray& channels) const
{
    QVector<QByteArray> universes;
    QByteArray universe(controller.channel - 1, '\0');
    for (int from = 0; from < channels.size();) {
        const int taken = (512 - universe.size()) / 3 * 3;
        universes.append(universe + channels.mid(from, taken));
        universe.clear();
        from += taken;
    }
    return universes;
}

QVector<Packet> PacketMaker::E131(const QByteArray& channels, bool isLast)
{
    const auto group = [this](int universe) {
        return controller.host.isEmpty() ? QHostAddress(0xEFFF0000U | quint32(universe))
                                         : QHostAddress();
    };
    QVector<Packet> packets;
    sequence = (sequence + 1) % 256;
    int universe = controller.universe;
    for (const QByteArray& data : Universes(channels)) {
        const QByteArray properties =
            Layer(Number(0x02, 1) + Number(0xA1, 1) + Number(0, 2) + Number(1, 2) +
                  Number(data.size() + 1, 2) + Number(0, 1) + data);
        const QByteArray framing =
            Layer(Number(2, 4) + controller.source.toUtf8().leftJustified(64, '\0') +
                  Number(controller.priority, 1) + Number(controller.syncUniverse, 2) +
                  Number(sequence, 1) + Number(isLast ? streamTerminated : 0, 1) +
                  Number(universe, 2) + properties);
        packets.append({Root(4, component, framing), group(universe)});
        ++universe;
    }
    if (controller.syncUniverse > 0)
        packets.append({Root(8, component,
                             Layer(Number(1, 4) + Number(sequence, 1) +
                                   Number(controller.syncUniverse, 2) + Number(0, 2))),
                        group(controller.syncUniverse)});
    return packets;
}

QVector<Packet> PacketMaker::ArtNet(const QByteArray& channels)
{
    QVector<Packet> packets;
    sequence = sequence % 255 + 1; // 0 means that packets are not numbered
    int universe = controller.universe;
    for (QByteArray data : Universes(channels)) {
        if (data.size() % 2 == 1)
            data.append('\0'); // lengths must be even
        packets.append({ArtHead(0x5000) + Number(sequence, 1) + Number(0, 1) +
                            Number(universe & 0xFF, 1) + Number(universe >> 8, 1) +
                            Number(data.size(), 2) + data,
                        QHostAddress()});
        ++universe;
    }
    packets.append({ArtHead(0x5200) + Number(0, 2), QHostAddress()});
    return packets;
}

} // namespace AnimText::lights
