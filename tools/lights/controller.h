/**
 * @file
 * An LED controller on the network: where it is and how its LEDs are wired.
 */
#ifndef ANIMTEXT_CONTROLLER_H
#define ANIMTEXT_CONTROLLER_H

#include <QRect>
#include <QString>
#include <QStringList>

namespace AnimText {

enum class Protocol { Ddp, E131, ArtNet };

/** The way of the data line through a matrix, seen from the front. */
struct Wiring
{
    bool columns = false;    ///< LEDs follow one another along columns, not rows
    bool serpentine = false; ///< every second row or column runs backwards
    bool right = false;      ///< the first LED is on the right
    bool bottom = false;     ///< the first LED is at the bottom
    int turns = 0;           ///< quarter turns, clockwise, of the picture on the matrix
};

/** One controller and the part of the display that it shows. */
struct Controller
{
    QString address; ///< as it was given, for messages
    Protocol protocol = Protocol::Ddp;
    QString host; ///< empty: E1.31's multicast groups
    int port = 0;
    QRect rect; ///< of the display, pixels; empty: all of it

    Wiring wiring;
    QString order = QStringLiteral("RGB"); ///< in which a pixel's three channels are sent
    double gamma = 1;
    int brightness = 100; ///< percent

    int universe = 1;     ///< the first one
    int channel = 1;      ///< of the first universe or, with DDP, of all data; counted from 1
    int priority = 100;   ///< E1.31: 0 to 200
    int syncUniverse = 0; ///< E1.31: where synchronization is sent; 0: none
    QString source = QStringLiteral("Animated Text"); ///< E1.31: at most 63 bytes
    int timeToLive = 1;                               ///< routers that multicast passes, and one
    QString interface;      ///< the network interface that multicast leaves by; empty: the system's
    bool broadcast = false; ///< whether the host may be a broadcast address
};

/** Pixels that a universe holds: 512 channels, three a pixel. */
constexpr int universePixels = 170;

/** The words that a layout is made of. */
QStringList LayoutWords();

/**
 * Applies one setting: a word of a layout, or NAME=VALUE with the name of a command-line option.
 * On failure returns false and sets @p error to one line.
 */
bool ApplySetting(Controller* controller, const QString& setting, QString* error);

/**
 * Reads PROTOCOL://HOST[:PORT][/[X,Y,]WIDTHxHEIGHT][,SETTING...]. What the address does not set
 * stays as it is in @p controller.
 */
bool ReadAddress(Controller* controller, const QString& address, QString* error);

/** Gives a controller without a rectangle the whole display; false where it does not fit. */
bool FitToDisplay(Controller* controller, QSize display, QString* error);

/** How many universes the controller's pixels need; its rectangle must be known. */
int UniverseCount(const Controller& controller);

} // namespace AnimText

#endif
