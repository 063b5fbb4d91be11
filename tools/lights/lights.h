/**
 * @file
 * Shows pictures on LED controllers over the network.
 */
#ifndef ANIMTEXT_LIGHTS_H
#define ANIMTEXT_LIGHTS_H

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

namespace AnimText {

enum class Sending { Done, Full, Failed };

/** Hands a packet to the network without waiting; sets @p why where that fails. */
using Transmit = std::function<Sending(const Packet& packet, QString* why)>;

/** The address of a name that was looked up, IPv4 first, which is all that most controllers have.
 */
QHostAddress PreferredAddress(const QHostInfo& found);

/**
 * A socket for @p controller at @p host, or for multicast where that is null: it never waits, and
 * sends to broadcast addresses only where the controller allows that. Null, with one line in
 * @p error, when the system cannot give it.
 */
std::unique_ptr<QUdpSocket> OpenSocket(const Controller& controller, const QHostAddress& host,
                                       QString* error);

/**
 * The controllers that one display is shown on. Nothing here waits: where the system's buffer is
 * full, a controller misses the rest of a picture. One that cannot be reached is reported once and
 * gets every further picture. Ends dark unless told otherwise.
 */
class Lights : public QObject
{
    Q_OBJECT

public:
    explicit Lights(QObject* parent = nullptr);
    /** Calls End(). */
    ~Lights() override;

    /**
     * Looks the controller up, which may take as long as the system's name service does, and adds
     * it. Sends nothing. On failure returns false, with one line in @p error.
     */
    bool Add(Controller controller, QSize display, QString* error);
    /** Adds a controller whose packets go to @p transmit; its rectangle must be known. */
    void Add(const Controller& controller, const Transmit& transmit);

    /** One line a controller: what it shows, and where its packets go. */
    QString Description() const;

    /** Sends @p display to all; again every repeatTime until the next one, or controllers give up.
     */
    void Show(const QImage& display);
    static constexpr int repeatTime = 800; ///< milliseconds; E1.31 wants 800 to 1000

    /** Whether the last picture stays when this ends. */
    void SetKeeps(bool keeps) { this->keeps = keeps; }
    /** Sends black, several times, since packets get lost; shows nothing more. */
    void End();

    /** One line: how many pictures were sent and dropped, all controllers together. */
    QByteArray Report() const;

signals:
    /** A controller cannot be reached, or can be again; one line. */
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
        int arrived = 0; // pictures in a row since the last failure
    };

    void Send(Output* output, const QByteArray& channels, bool isLast);
    bool CheckOverlap(const Controller& controller, const QString& destination,
                      QString* error) const;

    std::vector<Output> outputs;
    QImage last;
    QTimer repeat;
    bool keeps = false;
    bool ended = false;
    qint64 packets = 0;
    qint64 pictures = 0;
    qint64 dropped = 0;
};

} // namespace AnimText

#endif
