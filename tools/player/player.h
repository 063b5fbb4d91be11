/**
 * @file
 * A scene played tick by tick on virtual time.
 */
#pragma once

#include "player/stage.h"
#include "player/virtualdispatcher.h"

#include <QImage>
#include <QVector>

namespace AnimText::player {

/** Milliseconds from one tick of the plugin's draw timer to the next. */
constexpr int tickLength = 66;

/** The default seed of random numbers. */
constexpr uint standardSeed = 1;

/** What a node sends to the display in a tick. */
struct NodeTick
{
    int tick = 0;
    bool swapped = false;  ///< a new picture of the text was handed to the display
    QSize size{0, 0};      ///< of the picture that the display shows
    QByteArray sha1;       ///< of its rows; empty without a picture
    int state = 0;         ///< 0 finished, 1 playing, 2 nothing to play
    QByteArray background; ///< SHA-1 of the dazzle background; empty without one
};

/**
 * Tick 0 is the start, tick i the moment i × 66 ms later, after everything that is due then. The
 * display's clock counts from the start.
 */
class Player
{
public:
    /** @param dispatcher the dispatcher of this thread */
    Player(VirtualDispatcher* dispatcher, Lw::INodePlugin* plugin);
    ~Player();

    /** Throws Failure; nothing is played then. */
    void Load(const scene::Scene& scene) { stage.Build(scene); }

    /** Tick 0: starts every node. */
    void Start(uint seed = standardSeed) { Start(AllAtOnce(NodeCount()), seed); }
    /** Tick 0 of a showing in which the host starts and stops the nodes as @p schedule says. */
    void Start(const Schedule& schedule, uint seed);
    /** Advances to the next tick. */
    void Advance();

    int Tick() const { return tick; }
    qint64 Time() const { return qint64(tick) * tickLength; }

    Stage& Scenery() { return stage; }
    QVector<qint64> Durations() const { return stage.Durations(); }
    int NodeCount() const { return stage.NodeCount(); }
    /** 0 finished, 1 playing, 2 nothing to play. */
    int State(int node) const { return stage.Render(node)->renderState(); }
    /** Whether this tick handed a new picture of the text to the display. */
    bool Swapped(int node) const { return parts.at(node).swapped; }
    /** This tick of a node. */
    NodeTick Look(int node);
    /** A copy of the picture that the node's text layer shows; null without one. */
    QImage TextPicture(int node) const
    {
        return Torv::FrontImage(stage.Session(node), stage.TextLayer(node));
    }
    /** A copy of the node's dazzle background; null without one. */
    QImage DazzlePicture(int node) const
    {
        return Torv::FrontImage(stage.Session(node), stage.DazzleLayer(node));
    }
    /** What the display shows. */
    QImage Picture() const { return stage.Compose(Time()); }

private:
    Q_DISABLE_COPY(Player)

    struct Part
    {
        qint64 swaps = 0;
        bool swapped = false;
        bool isKnown = false; // whether these are the picture's
        QSize size{};
        QByteArray sha1{};
    };

    static qint64 Clock(void* player);
    void CountSwaps();

    VirtualDispatcher* dispatcher;
    Stage stage;
    qint64 origin = 0;
    int tick = 0;
    QVector<Part> parts; // one a node
};

} // namespace AnimText::player
