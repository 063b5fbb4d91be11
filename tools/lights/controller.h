/**
 * @file
 * An LED controller on the network: where it is and how its LEDs are wired.
 */
#pragma once

#include <QRect>
#include <QString>
#include <QStringList>

namespace AnimText::lights {

enum class Protocol { Ddp, E131, ArtNet };

/** How the data line runs through a matrix, seen from the front. */
struct Wiring
{
    bool columns = false;    ///< runs along columns instead of rows
    bool serpentine = false; ///< every second row or column runs backwards
    bool right = false;      ///< the first LED is on the right
    bool bottom = false;     ///< the first LED is at the bottom
    int turns = 0;           ///< quarter turns, clockwise, of the picture on the matrix
};

/** One controller and the part of the display that it shows. */
struct Controller
{
    QString address; ///< as given, for messages
    Protocol protocol = Protocol::Ddp;
    QString host; ///< empty: E1.31's multicast groups
    int port = 0;
    QRect rect; ///< of the display, pixels; empty: the whole display

    Wiring wiring;
    QString order = "RGB"; ///< of a pixel's three channels
    double gamma = 1;
    int brightness = 100; ///< percent

    int universe = 1;     ///< the first universe
    int channel = 1;      ///< the first one, in the first universe or, for DDP, in all data; from 1
    int priority = 100;   ///< E1.31: 0 to 200
    int syncUniverse = 0; ///< E1.31: for synchronization packets; 0: none
    QString source = "Animated Text"; ///< E1.31: at most 63 bytes
    int timeToLive = 1;               ///< of multicast packets: 1 + number of routers
    QString interface;                ///< for multicast; empty: the system's default
    bool broadcast = false;           ///< allow a broadcast address as host
};

/** The words for layouts. */
QStringList LayoutWords();

/**
 * Applies one setting: a word of a layout, or NAME=VALUE with the name of a command-line option.
 * On failure returns false and sets @p error to one line.
 */
bool ApplySetting(Controller* controller, const QString& setting, QString* error);

/**
 * Reads PROTOCOL://HOST[:PORT][/[X,Y,]WIDTHxHEIGHT][,SETTING...]. Other values of @p controller are
 * unchanged. On failure returns false and sets @p error to one line.
 */
bool ReadAddress(Controller* controller, const QString& address, QString* error);

/** Sets an empty rectangle to the whole display; false, with an @p error, if it does not fit. */
bool FitToDisplay(Controller* controller, QSize display, QString* error);

/**
 * The first channel of the controller's LED @p led, counted over all universes of 512 channels; for
 * DDP, its first byte.
 */
qint64 ChannelOf(const Controller& controller, qint64 led);

/** The universe of the controller's last LED; its rectangle must be set. */
int LastUniverse(const Controller& controller);

} // namespace AnimText::lights
