// LEDs on the network: what is sent, to where, and when. All packets of these tests stay on
// 127.0.0.1.
#include "lights/lights.h"
#include "lights/testpattern.h"
#include "player/virtualdispatcher.h"
#include "table.h"
#include "testscene.h"

#include <QHostInfo>
#include <QNetworkInterface>
#include <QUdpSocket>

#include <csignal>

#include <sys/socket.h>

using namespace AnimText;

namespace {

const QSize display(64, 32);

/** An address on a display of 64 × 32; @p error says why there is none. */
lights::Controller Read(const QString& address, QString* error)
{
    lights::Controller controller;
    error->clear();
    if (lights::ReadAddress(&controller, address, error))
        lights::FitToDisplay(&controller, display, error);
    return controller;
}

lights::Controller Read(const QString& address)
{
    QString error;
    const lights::Controller controller = Read(address, &error);
    if (!error.isEmpty())
        qFatal("%s", qPrintable(error));
    return controller;
}

// Headers as the protocols' texts have them, in hexadecimal; letters beyond f stand for values. r,
// m and p are the lengths of E1.31's layers, n that of the data, k one more for the start code; s
// counts packets, u and l are a universe, l with its low byte first, o an offset, v says what is to
// be shown.
const QByteArray ddp = "4vss0b01oooooooonnnn";
const QByteArray acn = "001000004153432d45312e3137000000rrrr";
const QByteArray anybody(32, '.');
const QByteArray e131 = acn + "00000004" + anybody + "mmmm00000002" + "57616c6c" +
                        QByteArray(120, '0') + "070063ss00uuuupppp02a100000001kkkk00";
const QByteArray e131Sync = acn + "00000008" + anybody + "mmmm00000001ss00630000";
const QByteArray artNet = "4172742d4e6574000050000ess00llllnnnn";
const QByteArray artSync = "4172742d4e6574000052000e0000";

/** @p header with @p value in place of a row of that letter. */
void Fill(QByteArray* header, char letter, int value)
{
    const int at = header->indexOf(letter);
    const int width = header->lastIndexOf(letter) - at + 1;
    if (at >= 0)
        header->replace(at, width, QByteArray::number(value, 16).rightJustified(width, '0'));
}

/** Takes the network's place: keeps what is sent, and fails as @p outcomes says. */
struct Network
{
    QVector<lights::Packet> packets;
    QString outcomes; ///< a packet each: "." arrives, "o" meets a full buffer, "x" nobody

    lights::Transmit Taker()
    {
        return [this](const lights::Packet& packet, QString* why) {
            const QChar outcome = outcomes.isEmpty() ? '.' : outcomes.at(0);
            outcomes.remove(0, 1);
            *why = outcome == 'x' ? "nobody" : "";
            packets.append(packet);
            return outcome == 'x'   ? lights::Sending::Failed
                   : outcome == 'o' ? lights::Sending::Full
                                    : lights::Sending::Done;
        };
    }
};

QImage Plain(const QColor& color, QSize size = display)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(color);
    return picture;
}

} // namespace

class TestLights : public QObject
{
    Q_OBJECT

private slots:
    // A picture of 3 × 2, abc above def.
    void layouts_data()
    {
        const Table<QString, QString> row("layout", "leds");
        row("rows", "", "abcdef");
        row("serpentine", ",serpentine", "abcfed");
        row("bottom left", ",bottom-left,serpentine", "defcba");
        row("top right", ",top-right,straight", "cbafed");
        row("bottom right", ",bottom-right", "fedcba");
        row("columns", ",columns", "adbecf");
        row("columns, serpentine", ",columns,serpentine", "adebcf");
        row("columns, bottom right", ",columns,bottom-right", "fcebda");
        row("turned", ",rotate-90", "daebfc");
        row("upside down", ",rotate-180", "fedcba");
        row("turned back", ",rotate-270,serpentine", "cfebad");
        row("turned, from below", ",rotate-90,serpentine,bottom-left", "fcbeda");
        row("the last word counts", ",columns,rows,bottom-right,top-left,serpentine,straight",
            "abcdef");
    }

    void layouts()
    {
        QFETCH(QString, layout);
        QFETCH(QString, leds);
        QImage picture = Plain(Qt::black);
        for (int i = 0; i < 6; ++i)
            picture.setPixel(4 + i % 3, 2 + i / 3, qRgb('a' + i, 0, 0));
        const QByteArray channels =
            lights::LedMap(Read("ddp://h/4,2,3x2" + layout)).Channels(picture);
        QString found;
        for (int i = 0; i < channels.size(); i += 3)
            found += QChar(channels.at(i));
        QCOMPARE(found, leds);
    }

    void colors_data()
    {
        const Table<QString, QColor, QByteArray> row("setting", "color", "channels");
        row("as they are", "", QColor(16, 32, 48), "102030");
        row("another order", ",color-order=grb", QColor(16, 32, 48), "201030");
        row("over black", "", QColor(255, 128, 0, 128), "804000");
        row("darker", ",brightness=40", QColor(255, 100, 0), "662800");
        row("off", ",brightness=0", QColor(255, 255, 255), "000000");
        row("gamma", ",gamma=2.2", QColor(255, 128, 0), "ff3800");
    }

    void colors()
    {
        QFETCH(QString, setting);
        QFETCH(QColor, color);
        QTEST(lights::LedMap(Read("ddp://h/1x1" + setting)).Channels(Plain(color)).toHex(),
              "channels");
    }

    // Two pictures: every field of every packet, and the channels in their places.
    void packets_data()
    {
        // parts: the offsets or universes that data goes to, and how many bytes
        const Table<QString, QByteArray, QByteArray, QString> row("address", "header", "sync",
                                                                  "parts");
        row("one packet", "ddp://h/16x16", ddp, "", "0:768");
        row("three packets", "ddp://h/64x16,channel=4", ddp, "", "3:1440 1443:1440 2883:192");
        const QString wall = ",priority=7,source-name=Wall,sync-universe=99";
        row("universes", "sacn://h/20x17,universe=300" + wall, e131, e131Sync, "300:510 301:510");
        row("from the middle", "sacn://h/171x1,channel=4" + wall, e131, e131Sync, "1:510 2:6");
        row("multicast", "sacn:///1x1,universe=63999" + wall, e131, e131Sync, "63999:3");
        row("even lengths", "artnet://h/3x57,universe=32766", artNet, artSync, "32766:510 32767:4");
    }

    void packets()
    {
        QFETCH(QString, address);
        QFETCH(QByteArray, header);
        QFETCH(QByteArray, sync);
        QFETCH(QString, parts);
        QString error;
        lights::Controller controller;
        QVERIFY2(lights::ReadAddress(&controller, address, &error), qPrintable(error));
        const bool isDdp = controller.protocol == lights::Protocol::Ddp;
        const QStringList places = parts.split(' ');
        QByteArray channels;
        for (int i = 0; i < 3 * controller.rect.width() * controller.rect.height(); ++i)
            channels.append(char(i % 251 + 1));
        lights::PacketMaker maker(controller);
        for (int picture = 0; picture < 2; ++picture) {
            const QVector<lights::Packet> sent = maker.Picture(channels);
            QCOMPARE(sent.size(), places.size() + (sync.isEmpty() ? 0 : 1));
            QByteArray all;
            for (int i = 0; i < sent.size(); ++i) {
                const QByteArray bytes = sent[i].bytes;
                const bool isSync = i == places.size();
                const int place = isSync ? 99 : places[i].section(':', 0, 0).toInt();
                const int size = isSync ? 0 : places[i].section(':', 1).toInt();
                QByteArray expected = isSync ? sync : header;
                expected.replace(anybody, bytes.mid(22, 16).toHex());
                Fill(&expected, 'r', 0x7000 + bytes.size() - 16);
                Fill(&expected, 'm', 0x7000 + bytes.size() - 38);
                Fill(&expected, 'p', 0x7000 + bytes.size() - 115);
                Fill(&expected, 'n', size);
                Fill(&expected, 'k', size + 1);
                Fill(&expected, 's', 1 + picture * (isDdp ? sent.size() : 1) + (isDdp ? i : 0));
                Fill(&expected, 'u', place);
                Fill(&expected, 'o', place);
                Fill(&expected, 'l', place % 256 * 256 + place / 256);
                Fill(&expected, 'v', i + 1 == sent.size() ? 1 : 0);
                QCOMPARE(bytes.left(bytes.size() - size).toHex(), expected);
                QCOMPARE(sent[i].group, controller.host.isEmpty()
                                            ? QHostAddress(0xEFFF0000U + uint(place))
                                            : QHostAddress());
                all += bytes.right(size);
            }
            const QByteArray before(isDdp ? 0 : controller.channel - 1, '\0');
            const QByteArray after(all.size() - before.size() - channels.size(), '\0');
            QVERIFY(after.size() < 2 && all == before + channels + after);
        }
    }

    void sequencesGoRound_data()
    {
        const Table<QString, int, int, int> row("address", "offset", "lowest", "count");
        row("DDP", "ddp://h/1x1", 1, 1, 15);
        row("E1.31", "sacn://h/1x1", 111, 0, 256);
        row("Art-Net", "artnet://h/1x1", 12, 1, 255);
    }

    void sequencesGoRound()
    {
        QFETCH(QString, address);
        QFETCH(int, offset);
        QFETCH(int, lowest);
        QFETCH(int, count);
        lights::PacketMaker maker(Read(address));
        for (int i = 0; i < 600; ++i)
            QCOMPARE(int(uchar(maker.Picture("abc").first().bytes.at(offset))),
                     lowest + (i + 1 - lowest) % count);
    }

    void addresses_data()
    {
        const Table<QString, QString> row("address", "error"); // a part of it; empty: none
        row("a name", "ddp://wall.local", "");
        row("IPv6", "artnet://[::1]:7000/serpentine", "");
        row("a comma for the slash", "ddp://h,serpentine", "");
        row("the last universes", "sacn:///universe=63987", "");
        row("other protocol", "http://h", "expected ddp://HOST");
        row("no port", "ddp://h:0", "1 to 65535");
        row("large port", "ddp://h:65536", "1 to 65535");
        row("nobody", "artnet://", "only sacn:// works without one");
        row("half a rectangle", "ddp://h/0,0", "expected a rectangle");
        row("no pixels", "ddp://h/0x4", "expected a rectangle");
        row("beyond the display", "ddp://h/1,0,64x32", "64x32 at 1,0 is not inside the display");
        row("no such layout", "ddp://h/serpentin", "did you mean serpentine?");
        row("no such setting", "ddp://h/gama=2", "did you mean gamma?");
        row("number", "ddp://h/brightness=101", "brightness is \"101\"; expected 0 to 100");
        row("gamma", "ddp://h/gamma=nan", "expected 0.1 to 10");
        row("order", "ddp://h/color-order=RGG", "expected the letters R, G and B");
        row("source", "sacn://h/source-name=" + QString(64, 'x'), "expected 1 to 63");
        row("E1.31 has no 0", "sacn://h/universe=0", "E1.31 has 1 to 63999");
        row("all of it", "sacn://h/17x10,universe=63999,channel=3", "");
        row("a pixel too many", "sacn://h/17x10,universe=63999,channel=4", "63999 to 64000");
        row("above the last", "sacn://h/universe=63988", "needs the universes 63988 to 64000");
        row("above Art-Net's last", "artnet://h/universe=32756", "Art-Net has 0 to 32767");
        row("no room", "sacn://h/channel=511", "expected 1 to 510");
    }

    void addresses()
    {
        QFETCH(QString, address);
        QFETCH(QString, error);
        QString told;
        Read(address, &told);
        QVERIFY2(error.isEmpty() ? told.isEmpty()
                                 : told.startsWith(address + ": ") && told.contains(error),
                 qPrintable(told));
    }

    // Added after sacn://127.0.0.1/16x32, which fills four universes, and a DDP controller.
    void severalControllers_data()
    {
        const Table<QString, QString> row("address", "error");
        row("the same universe", "sacn://127.0.0.1/1x1,universe=4", "uses the same channels");
        row("its free channels", "sacn://127.0.0.1/1x1,universe=4,channel=7", "");
        row("the next universe", "sacn://127.0.0.1/1x1,universe=5", "");
        row("another port", "sacn://127.0.0.1:5000/1x1", "");
        row("the same bytes", "ddp://127.0.0.1/1x1,channel=12", "uses the same channels");
        row("the next bytes", "ddp://127.0.0.1/1x1,channel=13", "");
        row("no such host", "ddp://host.invalid", "cannot be found");
        row("broadcast", "artnet://255.255.255.255", "use --broadcast");
        row("multicast", "ddp://239.255.0.1", "expected sacn://");
        row("no such interface", "sacn:///1x1,interface=none0", "no network interface");
    }

    void severalControllers()
    {
        QFETCH(QString, address);
        QFETCH(QString, error);
        lights::Lights lights;
        QString told;
        QVERIFY(lights.Add(Read("sacn://127.0.0.1/16x32,channel=1"), display, &told));
        QVERIFY(lights.Add(Read("ddp://127.0.0.1/2x2"), display, &told));
        QCOMPARE(lights.Add(Read(address), display, &told), error.isEmpty());
        QVERIFY2(told.contains(error), qPrintable(told));
        QVERIFY(lights.Report().startsWith("sent 0 pictures in 0 packets"));
    }

    void prefersIPv4()
    {
        QHostInfo found;
        QVERIFY(lights::PreferredAddress(found).isNull());
        found.setAddresses({QHostAddress("::1"), QHostAddress("127.0.0.1")});
        QCOMPARE(lights::PreferredAddress(found), QHostAddress("127.0.0.1"));
        found.setAddresses({QHostAddress("::1")});
        QCOMPARE(lights::PreferredAddress(found), QHostAddress("::1"));
    }

    // Asks the sockets; sends nothing.
    void socketsSendWhereTheyShould()
    {
        QString error;
        const QString lo = QNetworkInterface::interfaceFromIndex(1).name();
        const auto group =
            lights::OpenSocket(Read("sacn:///1x1,ttl=7,interface=" + lo), {}, &error);
        QVERIFY2(group, qPrintable(error));
        QCOMPARE(group->socketOption(QAbstractSocket::MulticastTtlOption).toInt(), 7);
        QCOMPARE(group->multicastInterface().name(), lo);
        for (bool allowed : {false, true}) {
            lights::Controller controller = Read("artnet://127.0.0.1:7001");
            controller.broadcast = allowed;
            const auto one = lights::OpenSocket(controller, QHostAddress("127.0.0.1"), &error);
            QVERIFY2(one, qPrintable(error));
            QCOMPARE(one->peerAddress(), QHostAddress("127.0.0.1"));
            QCOMPARE(one->peerPort(), quint16(7001));
            int broadcast = -1;
            socklen_t size = sizeof broadcast;
            getsockopt(int(one->socketDescriptor()), SOL_SOCKET, SO_BROADCAST, &broadcast, &size);
            QCOMPARE(broadcast != 0, allowed);
        }
    }

    // Pictures of three packets each.
    void missesAPictureNotATick_data()
    {
        const Table<int, QString, int, QString, QString> row("pictures", "outcomes", "packets",
                                                             "reports", "report");
        row("all arrive", 3, "", 9, "", "sent 3 pictures in 9 packets, dropped 0\n");
        row("full", 3, "....o", 8, "", "sent 2 pictures in 7 packets, dropped 1\n");
        row("gone", 3, "x.x....", 6, "gone", "sent 1 pictures in 4 packets, dropped 2\n");
        row("not back yet", 30, "x", 88, "gone", "sent 29 pictures in 87 packets, dropped 1\n");
        row("back", 31, "x", 91, "gone back", "sent 30 pictures in 90 packets, dropped 1\n");
    }

    void missesAPictureNotATick()
    {
        QFETCH(int, pictures);
        QFETCH(int, packets);
        QFETCH(QString, outcomes);
        Network network{{}, outcomes};
        lights::Lights lights;
        lights.SetKeeps(true);
        lights.Add(Read("ddp://h/64x16"), network.Taker());
        QStringList reports;
        connect(&lights, &lights::Lights::Reported, [&](const QString& line) {
            reports.append(line.contains("nobody")  ? "gone"
                           : line.contains("again") ? "back"
                                                    : line);
        });
        for (int i = 0; i < pictures; ++i)
            lights.Show(Plain(Qt::red));
        QCOMPARE(network.packets.size(), packets);
        QTEST(reports.join(' '), "reports");
        QTEST(QString(lights.Report()), "report");
    }

    // Receivers forget a source that is silent for 2.5 seconds.
    void repeatsWhatStands()
    {
        Network network;
        lights::Lights lights;
        lights.Add(Read("ddp://h/1x1"), network.Taker());
        auto* time = player::VirtualDispatcher::Current();
        time->AdvanceTo(time->Now() + 9999);
        QCOMPARE(network.packets.size(), 0);
        lights.Show(Plain(Qt::red));
        time->AdvanceTo(time->Now() + 2 * lights::Lights::repeatTime);
        QCOMPARE(network.packets.size(), 3);
        QCOMPARE(network.packets.last().bytes.mid(10).toHex(), QByteArray("ff0000"));
        // Counted from the last picture.
        time->AdvanceTo(time->Now() + lights::Lights::repeatTime - 1);
        lights.Show(Plain(Qt::red));
        time->AdvanceTo(time->Now() + lights::Lights::repeatTime - 1);
        QCOMPARE(network.packets.size(), 4);
    }

    void endsDark_data()
    {
        const Table<QString, bool, bool, QString> row("address", "shown", "keeps", "sent");
        row("DDP", "ddp://h/1x1", true, false, "red black black black");
        row("E1.31", "sacn://h/1x1", true, false, "red black black black end end end");
        row("keeps", "sacn://h/1x1", true, true, "red");
        row("has shown nothing", "ddp://h/1x1", false, false, "");
    }

    void endsDark()
    {
        QFETCH(QString, address);
        QFETCH(bool, shown);
        QFETCH(bool, keeps);
        Network network;
        {
            lights::Lights lights;
            lights.SetKeeps(keeps);
            lights.Add(Read(address), network.Taker());
            if (shown)
                lights.Show(Plain(Qt::red));
        }
        QStringList sent;
        for (const lights::Packet& packet : network.packets)
            sent.append(packet.bytes.endsWith(QByteArray("\xFF\0\0", 3))             ? "red"
                        : packet.bytes.size() == 129 && packet.bytes.at(112) == 0x40 ? "end"
                        : packet.bytes.endsWith(QByteArray(3, '\0'))                 ? "black"
                                                                                     : "?");
        QTEST(sent.join(' '), "sent");
    }

    void testPatterns_data()
    {
        const Table<QString, int, QStringList> row("name", "tick", "rows"); // of 4 × 2
        row("corners", "corners", 0, {"r..g", "b..w"});
        row("order begins", "order", 0, {"....", "...."});
        row("order", "order", 46, {"####", "r..."});
        row("order is complete", "order", 74, {"####", "###r"});
        row("colors", "colors", 0, {"rrgb", "rrgb"});
        row("levels", "levels", 0, {".##w", ".##w"});
        row("in turn", "all", 75 + 46, {"####", "r..."});
        row("from the start", "all", 4 * 75, {"r..g", "b..w"});
    }

    void testPatterns()
    {
        QFETCH(QString, name);
        QFETCH(int, tick);
        const QImage picture = lights::TestPattern(name, QSize(4, 2), tick);
        const QHash<QRgb, QChar> names{{qRgb(0, 0, 0), '.'},
                                       {qRgb(255, 0, 0), 'r'},
                                       {qRgb(0, 255, 0), 'g'},
                                       {qRgb(0, 0, 255), 'b'},
                                       {qRgb(255, 255, 255), 'w'}};
        QStringList rows;
        for (int y = 0; y < 2; ++y) {
            rows.append(QString());
            for (int x = 0; x < 4; ++x)
                rows.last() += names.value(picture.pixel(x, y), '#');
        }
        QTEST(rows, "rows");
    }

    // The program itself, on the clock: what arrives are pictures of the film, in their order.
    void playsToAController_data()
    {
        const Table<QString, int, bool> row("options", "signal", "dark");
        row("to the end", "one.json", 0, true);
        row("kept", "one.json --keep", 0, false);
        row("terminated", "one.json --loop", SIGTERM, true);
        row("test pattern", "--test-pattern=colors --layout rotate-180", SIGINT, true);
    }

    void playsToAController()
    {
        QFETCH(QString, options);
        QFETCH(int, signal);
        QFETCH(bool, dark);
        files.Save(files.Of({files.Node({})}), "one.json"); // 64 × 32, 4 pictures
        QUdpSocket receiver;
        QVERIFY(receiver.bind(QHostAddress(QHostAddress::LocalHost), 0));
        QProcess program;
        program.setWorkingDirectory(files.Path(""));
        program.start(ANIMTEXT_PROGRAMS "/animtext",
                      QString("play %1 --to ddp://127.0.0.1:%2/64x32 --timing")
                          .arg(options)
                          .arg(receiver.localPort())
                          .split(' '));
        QVERIFY(receiver.waitForReadyRead(300000));
        if (signal != 0)
            QVERIFY(::kill(pid_t(program.processId()), signal) == 0);
        QVERIFY(program.waitForFinished(300000));
        QCOMPARE(program.exitCode(), signal == 0 ? 0 : 128 + signal);

        QVector<QByteArray> pictures{QByteArray()};
        while (receiver.hasPendingDatagrams()) {
            QByteArray packet(2000, '\0');
            packet.resize(int(receiver.readDatagram(packet.data(), packet.size())));
            pictures.last() += packet.mid(10);
            if (packet.at(0) & 1)
                pictures.append(QByteArray());
        }
        QCOMPARE(pictures.takeLast(), QByteArray());
        const QByteArray black(64 * 32 * 3, '\0');
        const int ends = dark ? 3 : 0;
        QVERIFY(pictures.size() > ends);
        for (int i = 0; i < ends; ++i)
            QCOMPARE(pictures.takeLast(), black);
        QVector<QByteArray> film;
        if (options.contains("pattern")) {
            const QImage pattern = lights::TestPattern("colors", display, 0);
            film.append(lights::LedMap(Read("ddp://h/rotate-180")).Channels(pattern));
        } else {
            QCOMPARE(files.Shell("animtext render one.json -o film/").status, 0);
            for (const char* name : {"0000", "0001", "0002", "0003"})
                film.append(
                    lights::LedMap(Read("ddp://h"))
                        .Channels(QImage(files.Path(QString("film/frame-%1.png").arg(name)))));
        }
        QCOMPARE(pictures.first(), film.first());
        int at = 0;
        for (const QByteArray& picture : pictures) {
            at = film.indexOf(picture, at);
            QVERIFY(at >= 0);
        }
        if (signal == 0)
            QCOMPARE(pictures.last(), film.last());
    }

private:
    TestScenes files;
};

int main(int argc, char** argv)
{
    QCoreApplication::setEventDispatcher(new player::VirtualDispatcher);
    QGuiApplication application(argc, argv);
    TestLights test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_lights.moc"
