#include "player/stage.h"

#include "files/failure.h"

#include <hneonnodebase.h>
#include <hpluginmanager.h>
#include <inodeplugin.h>
#if QT_VERSION >= 0x060000
#include <qrand.h>
#endif

namespace AnimText::player {

Stage::Stage(Lw::INodePlugin* plugin)
    : plugin(plugin)
{
}

Stage::~Stage()
{
    watch = nullptr;
    Stop();
    parts.clear();
    Torv::SetCallLog(nullptr, nullptr);
}

void Stage::Build(const scene::Scene& scene)
{
    Stop();
    parts.clear();
    tree = NodeTree();
    NodeTree built = BuildNodeTree(scene, plugin);
    files::FailUnless(!built.nodes.isEmpty(),
                      scene.path + ": $.pages: expected at least one node, found none",
                      files::BadInput);
    // Renderers ask for the format when they are made.
    Lw::HPluginManager::instance()->SetAlphaBlend(scene.alphaBlend);
    std::vector<Part> made;
    const QList<const scene::SceneNode*> nodes = scene.Nodes();
    for (int node = 0; node < nodes.size(); ++node) {
        Part part;
        part.motion = scene::MotionOf(*nodes.at(node));
        part.render.reset(plugin->CreateAreaRender(built.nodes.at(node)));
        files::FailUnless(bool(part.render),
                          scene.path + ": the plugin makes no renderer for its nodes",
                          files::BadInput);
        made.push_back(std::move(part));
    }
    parts = std::move(made);
    tree = std::move(built);
    display = std::make_unique<Torv::Display>(scene.display);
}

void Stage::Start(const Schedule& schedule, uint newSeed)
{
    coming = schedule.showings;
    shown.clear();
    seed = newSeed;
    Change(0);
}

qint64 Stage::NextChange() const
{
    qint64 next = coming.isEmpty() ? never : coming.first().from;
    for (const Showing& showing : shown)
        next = std::min(next, showing.until);
    return next;
}

void Stage::Change(qint64 time)
{
    for (int i = shown.size() - 1; i >= 0; --i) {
        if (shown.at(i).until <= time)
            StopNode(shown.takeAt(i).node);
    }
    while (!coming.isEmpty() && coming.first().from <= time) {
        StartNode(coming.first().node);
        shown.append(coming.takeFirst());
    }
}

QVector<qint64> Stage::Durations() const
{
    QVector<qint64> durations;
    for (Lw::HNeonNodeBase* node : tree.nodes)
        durations.append(node->Duration());
    return durations;
}

void Stage::StartNode(int node)
{
    created = 0;
    appended.clear();
    Torv::SetCallLog(Log, this);
    qsrand(seed);
    Render(node)->Start(display->Handle());
    parts.at(size_t(node)).session = display->Sessions().contains(created) ? created : 0;
    FindLayers(node);
}

/**
 * The text has layer 0. Where it stands still and a neon picture is behind it, neon takes layer 0
 * and the text the one that is appended first; if that failed, the text is not visible. The
 * dazzle background has the layer that is appended last.
 */
void Stage::FindLayers(int node)
{
    const auto isOn = [&](const char* key) {
        return Node(node)->GetAttributeToInt(QLatin1String(key)) == 1;
    };
    const bool neon = isOn("CheckNeonBg");
    Part& part = parts.at(size_t(node));
    part.textLayer = part.dazzleLayer = -1;
    if (!part.session)
        return;
    part.textLayer = neon && !part.motion.IsSideways() ? appended.value(0, -1) : 0;
    if (isOn("CheckDazzle"))
        part.dazzleLayer = appended.value(neon ? 1 : 0, -1);
}

void Stage::Stop()
{
    for (int node = 0; node < int(parts.size()); ++node)
        StopNode(node);
}

void Stage::StopNode(int node)
{
    Part& part = parts.at(size_t(node));
    part.render->Remove();
    part.session = 0;
    part.textLayer = -1;
}

void Stage::Log(void* context, const Torv::CallRecord& call)
{
    auto* stage = static_cast<Stage*>(context);
    if (call.operation == Torv::OpCreatePictureSession)
        stage->created = PicSession(call.result);
    if (call.operation == Torv::OpPicAppendImageLayer)
        stage->appended.append(int(call.result));
    if (stage->watch)
        stage->watch(call);
}

} // namespace AnimText::player
