#include "lights/lights.h"

#include <QHostInfo>
#include <QNetworkInterface>
#include <QUdpSocket>

#include <cerrno>

#include <sys/socket.h>

namespace AnimText::lights {

namespace {

constexpr int timesBlack = 3;
// Every other packet to a closed port succeeds: a refusal is reported by the next send.
constexpr int arrivedToBeBack = 30; // pictures, two seconds

bool Refuse(QString* error, const QString& line)
{
    *error = line;
    return false;
}

bool IsBroadcast(const QHostAddress& host)
{
    if (host == QHostAddress(QHostAddress::Broadcast))
        return true;
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry& entry : interface.addressEntries()) {
            if (!entry.broadcast().isNull() && entry.broadcast() == host)
                return true;
        }
    }
    return false;
}

bool LookUp(const Controller& controller, QHostAddress* host, QString* error)
{
    if (controller.host.isEmpty())
        return true;
    const auto refuse = [&](const QString& why) {
        return Refuse(error, controller.address + ": " + why);
    };
    const QHostInfo info = QHostInfo::fromName(controller.host);
    *host = PreferredAddress(info);
    if (host->isNull())
        return refuse(
            QStringLiteral("\"%1\" cannot be found: %2").arg(controller.host, info.errorString()));
    if (host->isMulticast())
        return refuse("is a multicast address; expected sacn://, which sends each "
                      "universe to its own group");
    if (IsBroadcast(*host) && !controller.broadcast)
        return refuse("is a broadcast address, which reaches every device in the "
                      "network; use --broadcast to allow it");
    return true;
}

Transmit Through(const std::shared_ptr<QUdpSocket>& socket, quint16 port)
{
    return [socket, port](const Packet& packet, QString* why) {
        errno = 0;
        const qint64 sent = packet.group.isNull()
                                ? socket->write(packet.bytes)
                                : socket->writeDatagram(packet.bytes, packet.group, port);
        const int code = errno;
        if (sent == packet.bytes.size())
            return Sending::Done;
        if (sent == 0 || code == EAGAIN || code == EWOULDBLOCK || code == ENOBUFS)
            return Sending::Full;
        *why = code != 0 ? qt_error_string(code) : socket->errorString();
        return Sending::Failed;
    };
}

} // namespace

QHostAddress PreferredAddress(const QHostInfo& found)
{
    for (const QHostAddress& address : found.addresses()) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol)
            return address;
    }
    return found.addresses().value(0);
}

std::unique_ptr<QUdpSocket> OpenSocket(const Controller& controller, const QHostAddress& host,
                                       QString* error)
{
    auto socket = std::make_unique<QUdpSocket>();
    const QString place = controller.address + ": ";
    if (host.isNull()) {
        const auto interface = QNetworkInterface::interfaceFromName(controller.interface);
        if (!controller.interface.isEmpty() && !interface.isValid()) {
            *error =
                place +
                QStringLiteral("there is no network interface \"%1\"").arg(controller.interface);
            return nullptr;
        }
        if (socket->bind(QHostAddress(QHostAddress::AnyIPv4), 0)) {
            socket->setSocketOption(QAbstractSocket::MulticastTtlOption, controller.timeToLive);
            if (interface.isValid())
                socket->setMulticastInterface(interface);
            return socket;
        }
    } else {
        // Only a connected socket gets ICMP errors.
        socket->connectToHost(host, quint16(controller.port));
        // Qt enables broadcast on every socket.
        const int broadcast = controller.broadcast ? 1 : 0;
        if (socket->state() == QAbstractSocket::ConnectedState &&
            setsockopt(int(socket->socketDescriptor()), SOL_SOCKET, SO_BROADCAST, &broadcast,
                       sizeof broadcast) == 0)
            return socket;
    }
    *error = place + socket->errorString();
    return nullptr;
}

Lights::Lights(QObject* parent)
    : QObject(parent)
{
    repeat.setInterval(repeatTime);
    connect(&repeat, &QTimer::timeout, this, [this] { Show(last); });
}

Lights::~Lights()
{
    End();
}

bool Lights::Add(Controller controller, QSize display, QString* error)
{
    QHostAddress host;
    if (!FitToDisplay(&controller, display, error) || !LookUp(controller, &host, error))
        return false;
    const QString destination =
        host.isNull() ? QStringLiteral("multicast port %1").arg(controller.port)
                      : QStringLiteral("%1 port %2").arg(host.toString()).arg(controller.port);
    const auto last = [](const Controller& of) {
        return ChannelOf(of, qint64(of.rect.width()) * of.rect.height() - 1) + 2;
    };
    for (const Output& output : outputs) {
        const Controller& other = output.controller;
        if (output.destination == destination && ChannelOf(controller, 0) <= last(other) &&
            ChannelOf(other, 0) <= last(controller))
            return Refuse(
                error,
                controller.address +
                    QStringLiteral(
                        ": uses the same channels as %1; choose another host, universe or channel")
                        .arg(other.address));
    }
    const std::shared_ptr<QUdpSocket> socket = OpenSocket(controller, host, error);
    if (!socket)
        return false;
    Add(controller, Through(socket, quint16(controller.port)));
    outputs.back().destination = destination;
    return true;
}

void Lights::Add(const Controller& controller, const Transmit& transmit)
{
    outputs.push_back({controller, LedMap(controller), PacketMaker(controller), transmit, {}});
}

QString Lights::Description() const
{
    QString lines;
    for (const Output& output : outputs) {
        const Controller& controller = output.controller;
        QString line = QStringLiteral("%1: %2x%3 pixels at %4,%5 to %6")
                           .arg(controller.address)
                           .arg(controller.rect.width())
                           .arg(controller.rect.height())
                           .arg(controller.rect.x())
                           .arg(controller.rect.y())
                           .arg(output.destination);
        if (controller.protocol != Protocol::Ddp)
            line += QStringLiteral(", universes %1 to %2")
                        .arg(controller.universe)
                        .arg(LastUniverse(controller));
        lines += line + QLatin1Char('\n');
    }
    return lines;
}

QByteArray Lights::Report() const
{
    if (outputs.empty())
        return QByteArray();
    return QStringLiteral("sent %1 pictures in %2 packets, dropped %3\n")
        .arg(pictures)
        .arg(packets)
        .arg(dropped)
        .toUtf8();
}

void Lights::Show(const QImage& display)
{
    if (ended)
        return;
    last = display;
    for (Output& output : outputs)
        Send(&output, output.map.Channels(display), false);
    repeat.start();
}

void Lights::Send(Output* output, const QByteArray& channels, bool isLast)
{
    QString why;
    Sending outcome = Sending::Done;
    for (const Packet& packet : output->maker.Picture(channels, isLast)) {
        outcome = output->transmit(packet, &why);
        if (outcome != Sending::Done)
            break;
        ++packets;
    }
    ++(outcome == Sending::Done ? pictures : dropped);
    output->arrived = outcome == Sending::Done ? output->arrived + 1 : 0;
    if (outcome == Sending::Failed && !output->isGone) {
        output->isGone = true;
        emit Reported(QStringLiteral("%1: %2; retrying with every picture")
                          .arg(output->controller.address, why));
    } else if (output->isGone && output->arrived >= arrivedToBeBack) {
        output->isGone = false;
        emit Reported(QStringLiteral("%1: reachable again").arg(output->controller.address));
    }
}

void Lights::End()
{
    repeat.stop();
    if (ended || keeps || last.isNull())
        return;
    ended = true;
    for (Output& output : outputs) {
        const bool terminates = output.controller.protocol == Protocol::E131;
        const QByteArray black(3 * output.controller.rect.width() * output.controller.rect.height(),
                               '\0');
        // Receivers may ignore the data of a packet that ends the stream, so black goes first.
        for (int i = 0; i < (terminates ? 2 : 1) * timesBlack; ++i)
            Send(&output, black, i >= timesBlack);
    }
}

} // namespace AnimText::lights
