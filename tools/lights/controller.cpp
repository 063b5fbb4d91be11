#include "lights/controller.h"

#include "scene/suggest.h"

#include <QRegularExpression>

namespace AnimText::lights {

namespace {

constexpr int lastE131Universe = 63999;
constexpr int lastArtNetUniverse = 32767;
constexpr int longestSource = 63; // bytes; a zero ends the 64 of the field
constexpr int mostChannels = 1000000;
constexpr int universePixels = 170; // of three channels

const struct
{
    const char* name;
    const char* scheme;
    Protocol protocol;
    int port;
    int firstUniverse, lastUniverse;
} protocols[] = {{"DDP", "ddp", Protocol::Ddp, 4048, 0, lastE131Universe},
                 {"E1.31", "sacn", Protocol::E131, 5568, 1, lastE131Universe},
                 {"Art-Net", "artnet", Protocol::ArtNet, 6454, 0, lastArtNetUniverse}};

const struct
{
    const char* name;
    int Controller::*value;
    int least, most;
} numbers[] = {{"brightness", &Controller::brightness, 0, 100},
               {"universe", &Controller::universe, 0, lastE131Universe},
               {"channel", &Controller::channel, 1, mostChannels},
               {"priority", &Controller::priority, 0, 200},
               {"sync-universe", &Controller::syncUniverse, 0, lastE131Universe},
               {"ttl", &Controller::timeToLive, 1, 255}};

const struct
{
    const char* word;
    void (*apply)(Wiring* wiring);
} layoutWords[] = {
    {"rows", [](Wiring* wiring) { wiring->columns = false; }},
    {"columns", [](Wiring* wiring) { wiring->columns = true; }},
    {"straight", [](Wiring* wiring) { wiring->serpentine = false; }},
    {"serpentine", [](Wiring* wiring) { wiring->serpentine = true; }},
    {"top-left", [](Wiring* wiring) { wiring->bottom = wiring->right = false; }},
    {"top-right", [](Wiring* wiring) { wiring->bottom = !(wiring->right = true); }},
    {"bottom-left", [](Wiring* wiring) { wiring->bottom = !(wiring->right = false); }},
    {"bottom-right", [](Wiring* wiring) { wiring->bottom = wiring->right = true; }},
    {"rotate-0", [](Wiring* wiring) { wiring->turns = 0; }},
    {"rotate-90", [](Wiring* wiring) { wiring->turns = 1; }},
    {"rotate-180", [](Wiring* wiring) { wiring->turns = 2; }},
    {"rotate-270", [](Wiring* wiring) { wiring->turns = 3; }}};

bool Fail(QString* error, const QString& line)
{
    *error = line;
    return false;
}

bool ApplyLayout(Wiring* wiring, const QString& word, QString* error)
{
    for (const auto& known : layoutWords) {
        if (word == QLatin1String(known.word)) {
            known.apply(wiring);
            return true;
        }
    }
    return Fail(error,
                QStringLiteral("\"%1\" is not a layout; expected %2%3")
                    .arg(word, LayoutWords().join(", "), scene::DidYouMean(word, LayoutWords())));
}

/** Takes the rectangle from the front of @p words; empty when there is none. */
QRect TakeRect(QStringList* words)
{
    static const QRegularExpression pattern("^(?:(\\d{1,5}),(\\d{1,5}),)?(\\d{1,5})x(\\d{1,5})$");
    for (int count : {1, 3}) {
        const auto match = pattern.match(words->mid(0, count).join(QLatin1Char(',')));
        if (!match.hasMatch())
            continue;
        *words = words->mid(count);
        return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
                match.captured(4).toInt()};
    }
    return {};
}

} // namespace

QStringList LayoutWords()
{
    QStringList words;
    for (const auto& known : layoutWords)
        words.append(QLatin1String(known.word));
    return words;
}

bool ApplySetting(Controller* controller, const QString& setting, QString* error)
{
    const QString name = setting.section(QLatin1Char('='), 0, 0);
    const QString value = setting.section(QLatin1Char('='), 1);
    if (name == setting)
        return ApplyLayout(&controller->wiring, setting, error);
    const auto check = [&](bool isGood, const QString& expected) {
        return isGood ||
               Fail(error, QStringLiteral("%1 is \"%2\"; expected %3").arg(name, value, expected));
    };
    if (name == QLatin1String("color-order")) {
        controller->order = value.toUpper();
        QString sorted = controller->order;
        std::sort(sorted.begin(), sorted.end());
        return check(sorted == QLatin1String("BGR"), "the letters R, G and B in any order");
    }
    if (name == QLatin1String("gamma")) {
        controller->gamma = value.toDouble();
        return check(controller->gamma >= 0.1 && controller->gamma <= 10, "0.1 to 10");
    }
    if (name == QLatin1String("source-name")) {
        controller->source = value;
        return check(!value.isEmpty() && value.toUtf8().size() <= longestSource,
                     QStringLiteral("1 to %1 bytes").arg(longestSource));
    }
    if (name == QLatin1String("interface")) {
        controller->interface = value;
        return true;
    }
    QStringList names{"color-order", "gamma", "source-name", "interface"};
    for (const auto& known : numbers) {
        names.append(QLatin1String(known.name));
        if (name != names.last())
            continue;
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        controller->*known.value = number;
        return check(isNumber && number >= known.least && number <= known.most,
                     QStringLiteral("%1 to %2").arg(known.least).arg(known.most));
    }
    return Fail(error, QStringLiteral("unknown setting \"%1\"; expected a layout or %2%3")
                           .arg(name, names.join(", "), scene::DidYouMean(name, names)));
}

bool ReadAddress(Controller* controller, const QString& address, QString* error)
{
    static const QRegularExpression pattern(
        "^([a-z]+)://(\\[[^\\]]+\\]|[^:/,\\[\\]\\s]*)(?::(\\d{1,5}))?(?:[/,](.*))?$");
    const auto fail = [&](const QString& why) {
        return Fail(error, address.isEmpty() ? why : address + ": " + why);
    };
    const auto match = pattern.match(address);
    controller->address = address;
    controller->port = 0;
    for (const auto& known : protocols) {
        if (match.captured(1) != QLatin1String(known.scheme))
            continue;
        controller->protocol = known.protocol;
        controller->port = match.captured(3).isEmpty() ? known.port : match.captured(3).toInt();
    }
    if (!match.hasMatch() || controller->port < 1 || controller->port > 65535)
        return fail("expected ddp://HOST, sacn://HOST, sacn:// for multicast, or "
                    "artnet://HOST; the host may be followed by :PORT, 1 to 65535");
    controller->host = match.captured(2).remove(QLatin1Char('[')).remove(QLatin1Char(']'));
    QStringList words = match.captured(4).split(QLatin1Char(','), Qt::SkipEmptyParts);
    const bool startsWithNumber = !words.isEmpty() && words.first().at(0).isDigit();
    controller->rect = TakeRect(&words);
    if (startsWithNumber && controller->rect.isEmpty())
        return fail(
            "expected a rectangle of the display after the host, such as 64,0,64x32 or 64x32");
    for (const QString& word : words) {
        if (!ApplySetting(controller, word, error))
            return fail(*error);
    }
    // The last check, so that a dialog can show the wiring before anybody has named a host.
    if (controller->host.isEmpty() && controller->protocol != Protocol::E131)
        return fail("expected the controller's name or address; only sacn:// works without one");
    return true;
}

qint64 ChannelOf(const Controller& controller, qint64 led)
{
    if (controller.protocol == Protocol::Ddp)
        return controller.channel - 1 + 3 * led;
    const int inFirst = (513 - controller.channel) / 3;
    if (led < inFirst)
        return 512LL * controller.universe + controller.channel - 1 + 3 * led;
    led -= inFirst;
    return 512 * (controller.universe + 1 + led / universePixels) + 3 * (led % universePixels);
}

int LastUniverse(const Controller& controller)
{
    const qint64 leds = qint64(controller.rect.width()) * controller.rect.height();
    return int(ChannelOf(controller, leds - 1) / 512);
}

bool FitToDisplay(Controller* controller, QSize display, QString* error)
{
    const auto fail = [&](const QString& why) {
        return Fail(error, controller->address + ": " + why);
    };
    if (controller->rect.isEmpty())
        controller->rect = QRect(QPoint(0, 0), display);
    const QRect& rect = controller->rect;
    if (!QRect(QPoint(0, 0), display).contains(rect))
        return fail(QStringLiteral("%1x%2 at %3,%4 is not inside the display, which is %5x%6")
                        .arg(rect.width())
                        .arg(rect.height())
                        .arg(rect.x())
                        .arg(rect.y())
                        .arg(display.width())
                        .arg(display.height()));
    if (controller->protocol == Protocol::Ddp)
        return true;
    if (controller->channel > 510)
        return fail(QStringLiteral("channel is %1; expected 1 to 510, to leave room for one pixel")
                        .arg(controller->channel));
    const auto& known = protocols[int(controller->protocol)];
    const int last = LastUniverse(*controller);
    return (controller->universe >= known.firstUniverse && last <= known.lastUniverse) ||
           fail(QStringLiteral("needs the universes %1 to %2; %3 has %4 to %5")
                    .arg(controller->universe)
                    .arg(last)
                    .arg(QLatin1String(known.name))
                    .arg(known.firstUniverse)
                    .arg(known.lastUniverse));
}

} // namespace AnimText::lights
