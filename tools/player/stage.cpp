#include "player/stage.h"

#include <hneonnodebase.h>
#include <hpluginmanager.h>
#include <inodeplugin.h>
#if QT_VERSION >= 0x060000
#include <qrand.h>
#endif

namespace AnimText {

Stage::Stage(Lw::INodePlugin* plugin)
    : plugin(plugin)
{
}

Stage::~Stage()
{
    Stop();
    parts.clear();
    watch = nullptr;
    KeepCalls(false);
}

bool Stage::Build(const Scene& scene, QString* error)
{
    Stop();
    parts.clear();
    tree = NodeTree();
    NodeTree built;
    if (!BuildNodeTree(scene, plugin, &built, error))
        return false;
    if (built.nodes.isEmpty()) {
        *error = scene.path + QStringLiteral(": $.pages: expected at least one node, found none");
        return false;
    }
    // Renderers ask for the format when they are made.
    Lw::HPluginManager::instance()->SetAlphaBlend(scene.alphaBlend);
    for (Lw::HNeonNodeBase* node : built.nodes) {
        Part part;
        part.render.reset(plugin->CreateAreaRender(node));
        if (!part.render) {
            parts.clear();
            *error = scene.path + QStringLiteral(": the plugin makes no renderer for its nodes");
            return false;
        }
        parts.push_back(std::move(part));
    }
    tree = std::move(built);
    display = std::make_unique<Torv::Display>(scene.display);
    return true;
}

void Stage::Start(uint seed)
{
    for (int node = 0; node < NodeCount(); ++node)
        StartNode(node, seed);
}

void Stage::StartNode(int node, uint seed)
{
    const QList<PicSession> before = display->Sessions();
    const int firstCall = calls.size();
    Torv::SetCallLog(Log, this);
    qsrand(seed);
    isStarting = true;
    Render(node)->Start(display->Handle());
    isStarting = false;
    KeepCalls(keepCalls);

    Part& part = parts.at(size_t(node));
    part.session = 0;
    for (PicSession session : display->Sessions()) {
        if (!before.contains(session))
            part.session = session;
    }
    part.textLayer = part.session ? FindTextLayer(node, calls.mid(firstCall)) : -1;
    if (!keepCalls)
        calls.clear();
}

bool Stage::ScrollsSideways(int node) const
{
    const int style = Node(node)->GetAttributeToInt(QStringLiteral("ContinueStyle"));
    return Node(node)->GetAttributeToInt(QStringLiteral("EffectType")) == 1 &&
           (style == 0 || style == 1);
}

/**
 * The text has layer 0. Where it stands still and a neon picture lies behind it, neon takes layer 0
 * and the text the one that was appended first; if that failed, the text is shown nowhere.
 */
int Stage::FindTextLayer(int node, const QVector<Torv::CallRecord>& startCalls) const
{
    const bool neon = Node(node)->GetAttributeToInt(QStringLiteral("CheckNeonBg")) == 1;
    if (!neon || ScrollsSideways(node))
        return 0;
    for (const Torv::CallRecord& call : startCalls) {
        if (call.operation == Torv::OpPicAppendImageLayer)
            return int(call.result);
    }
    return -1;
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

void Stage::KeepCalls(bool keep)
{
    keepCalls = keep;
    if (keepCalls || watch)
        Torv::SetCallLog(Log, this);
    else
        Torv::SetCallLog(nullptr, nullptr);
}

QVector<Torv::CallRecord> Stage::TakeCalls()
{
    QVector<Torv::CallRecord> taken;
    taken.swap(calls);
    return taken;
}

void Stage::WatchCalls(const std::function<void(const Torv::CallRecord&)>& wanted)
{
    watch = wanted;
    KeepCalls(keepCalls);
}

void Stage::Log(void* context, const Torv::CallRecord& call)
{
    auto* stage = static_cast<Stage*>(context);
    if (stage->keepCalls || stage->isStarting)
        stage->calls.append(call);
    if (stage->watch)
        stage->watch(call);
}

} // namespace AnimText
