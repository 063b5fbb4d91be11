/**
 * @file
 * Shows pictures on LED controllers over the network.
 */
#pragma once

#include "lights/ledmap.h"
#include "lights/packets.h"

#include <QImage>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class QHostInfo;
class QUdpSocket;

namespace AnimText::lights {

enum class Sending { Done, Full, Failed };

/** Sends a packet without waiting; sets @p why on failure. */
using Transmit = std::function<Sending(const Packet& packet, QString* why)>;

/** The first IPv4 address, since most controllers have only that, or else the first address. */
QHostAddress PreferredAddress(const QHostInfo& found);

/**
 * A socket for @p controller at @p host, or for multicast if @p host is null. It never blocks and
 * sends to broadcast addresses only if the controller allows it. On failure returns null with one
 * line in @p error.
 */
std::unique_ptr<QUdpSocket> OpenSocket(const Controller& controller, const QHostAddress& host,
                                       QString* error);

/**
 * Shows a display on controllers. Nothing here blocks: if the system's buffer is full, a controller
 * misses the rest of a picture. An unreachable controller is reported once and still gets every
 * picture. Turns the LEDs off at the end unless SetKeeps() is set.
 */
class Lights : public QObject
{
    Q_OBJECT

public:
    explicit Lights(QObject* parent = nullptr);
    /** Calls End(). */
    ~Lights() override;

    /**
     * Resolves the host, which blocks as long as the system's name service does, and adds the
     * controller. Sends nothing. On failure returns false with one line in @p error.
     */
    bool Add(Controller controller, QSize display, QString* error);
    /** Adds a controller whose packets go to @p transmit; its rectangle must be set. */
    void Add(const Controller& controller, const Transmit& transmit);

    /** One line per controller: its part of the display and where its packets go. */
    QString Description() const;

    /** Sends @p display to all, and again every repeatTime, since controllers would time out. */
    void Show(const QImage& display);
    static constexpr int repeatTime = 800; ///< milliseconds; E1.31 wants 800 to 1000

    /** Whether End() leaves the last picture on the LEDs. */
    void SetKeeps(bool keeps) { this->keeps = keeps; }
    /** Sends black several times, since packets get lost. Show() does nothing afterwards. */
    void End();

    /** One line: the pictures sent and dropped by all controllers. */
    QByteArray Report() const;

signals:
    /** One line: a controller is unreachable, or reachable again. */
    void Reported(const QString& line);

private:
    struct Output
    {
        Controller controller;
        LedMap map;
        PacketMaker maker;
        Transmit transmit;
        QString destination;
        bool isGone = false;
        int arrived = 0; // pictures since the last failure
    };

    void Send(Output* output, const QByteArray& channels, bool isLast);

    std::vector<Output> outputs;
    QImage last;
    QTimer repeat;
    bool keeps = false;
    bool ended = false;
    qint64 packets = 0;
    qint64 pictures = 0;
    qint64 dropped = 0;
};

} // namespace AnimText::lights
