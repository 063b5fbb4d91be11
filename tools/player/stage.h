/**
 * @file
 * A scene on an emulated display: its nodes and the renderers that play them.
 */
#pragma once

#include "player/nodetree.h"
#include "player/schedule.h"
#include "scene/motion.h"
#include "scene/scene.h"

#include <display.h>
#include <icontentrender.h>

#include <QImage>
#include <QVector>

#include <functional>
#include <memory>
#include <vector>

namespace AnimText::player {

/**
 * Plays a scene on the clock of its thread's event dispatcher. One stage plays at a
 * time: whether layers blend by alpha is a setting of the process.
 */
class Stage
{
public:
    explicit Stage(Lw::INodePlugin* plugin);
    /** Takes everything off the display first. */
    ~Stage();

    /** Sets the scene up; throws Failure. */
    void Build(const scene::Scene& scene);

    /**
     * Begins to play @p schedule: from now on, Change() starts and stops the nodes. Before each
     * start, the random numbers are seeded with @p seed: every start gets the same ones.
     */
    void Start(const Schedule& schedule, uint seed);
    /** When there is something to start or to stop, milliseconds; player::never: never. */
    qint64 NextChange() const;
    /** Does what is due at @p time: first what ends, then what begins. */
    void Change(qint64 time);
    /** Stops every node and takes it off the display. */
    void Stop();

    /** The planned time of each node, milliseconds. */
    QVector<qint64> Durations() const;
    int NodeCount() const { return tree.nodes.size(); }
    Lw::HNeonNodeBase* Node(int node) const { return tree.nodes.at(node); }
    Lw::IContentRender* Render(int node) const { return parts.at(size_t(node)).render.get(); }
    scene::NodeMotion Motion(int node) const { return parts.at(size_t(node)).motion; }

    /** The session that the node's start has made; 0 without one. */
    PicSession Session(int node) const { return parts.at(size_t(node)).session; }
    /** The layer of that session that shows the text; negative without one. */
    int TextLayer(int node) const { return parts.at(size_t(node)).textLayer; }
    /** The layer that shows its dazzle background; negative without one. */
    int DazzleLayer(int node) const { return parts.at(size_t(node)).dazzleLayer; }

    /** What the display shows at @p milliseconds of the display's clock. */
    QImage Compose(qint64 milliseconds) const { return display->Compose(milliseconds); }

    /** @p wanted is called for every call of the device when it returns; empty: none. */
    void WatchCalls(const std::function<void(const Torv::CallRecord&)>& wanted) { watch = wanted; }

private:
    Q_DISABLE_COPY(Stage)

    struct Part
    {
        std::unique_ptr<Lw::IContentRender> render;
        scene::NodeMotion motion;
        PicSession session = 0;
        int textLayer = -1;
        int dazzleLayer = -1;
    };

    static void Log(void* stage, const Torv::CallRecord& call);
    void StartNode(int node);
    void StopNode(int node);
    void FindLayers(int node);

    Lw::INodePlugin* plugin;
    std::unique_ptr<Torv::Display> display;
    NodeTree tree;
    std::vector<Part> parts;
    QVector<Showing> coming;
    QVector<Showing> shown;
    uint seed = 0;
    PicSession created = 0; // by the last start
    QVector<int> appended;  // layers, by the last start; negative: it failed
    std::function<void(const Torv::CallRecord&)> watch;
};

} // namespace AnimText::player
