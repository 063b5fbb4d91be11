#include "player/nodetree.h"

#include "files/failure.h"

#include <hneonnodebase.h>
#include <inodeplugin.h>

namespace AnimText::player {

namespace {

void Fill(Lw::HNeonNodeBase* node, const scene::SceneNode& from, const scene::Scene& scene)
{
    node->SetPos(from.pos);
    node->SetSize(from.size);
    node->SetHoldTime(from.hold);
    node->SetNeonEffect(from.neonEffect);
    for (auto it = from.attributes.begin(); it != from.attributes.end(); ++it) {
        if (it.value().userType() == QMetaType::QString)
            node->SetAttribute(it.key(), it.value().toString());
        else
            node->SetAttribute(it.key(), it.value().toInt());
    }
    for (auto it = from.lists.begin(); it != from.lists.end(); ++it)
        node->SetList(it.key(), it.value());
    for (auto it = from.files.begin(); it != from.files.end(); ++it)
        node->SetFiles(it.key(), {scene.FullName(it.value())});
}

/** Throws Failure that names @p place. */
Lw::HNeonNodeBase* CreateNode(const scene::SceneNode& from, const QString& place,
                              Lw::INodePlugin* plugin)
{
    files::FailUnless(
        from.type == plugin->type(),
        QStringLiteral("%1.type: expected %2, the type that the plugin plays, found \"%3\"")
            .arg(place, plugin->type(), from.type),
        files::BadInput);
    Lw::HNode* node = plugin->Create();
    auto* animated = dynamic_cast<Lw::HNeonNodeBase*>(node);
    if (!animated)
        delete node;
    files::FailUnless(animated, place + ": the plugin creates no node for it", files::BadInput);
    return animated;
}

} // namespace

NodeTree BuildNodeTree(const scene::Scene& scene, Lw::INodePlugin* plugin)
{
    NodeTree built;
    built.program = std::make_unique<Lw::HNode>();
    for (int p = 0; p < scene.pages.size(); ++p) {
        auto* page = new Lw::HNode;
        built.program->AddChild(page);
        const QList<scene::SceneArea>& areas = scene.pages.at(p).areas;
        for (int a = 0; a < areas.size(); ++a) {
            auto* area = new Lw::HNode;
            page->AddChild(area);
            const QList<scene::SceneNode>& nodes = areas.at(a).nodes;
            for (int n = 0; n < nodes.size(); ++n) {
                const QString place = scene.path + ": " + scene::Place{p, a, n}.Path();
                Lw::HNeonNodeBase* node = CreateNode(nodes.at(n), place, plugin);
                area->AddChild(node);
                Fill(node, nodes.at(n), scene);
                built.nodes.append(node);
            }
        }
    }
    return built;
}

} // namespace AnimText::player
