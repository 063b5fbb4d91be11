#include "scene/attributes.h"
#include "scene/json.h"
#include "scene/scene.h"

namespace AnimText::scene {

namespace {

/** A list with each of @p items as @p write makes it. */
template <typename Items, typename Write>
Json Lines(const Items& items, const Write& write)
{
    Json list = Json::List({}, Json::Lines);
    for (const auto& item : items)
        list.Add(write(item));
    return list;
}

Json Row(const QHash<QString, QString>& row, const QStringList& fields)
{
    Json json = Json::Object({}, Json::Spaced);
    for (const QString& field : fields) {
        if (row.contains(field))
            json.Add(field, row.value(field));
    }
    return json;
}

Json Node(const SceneNode& node)
{
    Json attributes = Json::Object({}, Json::Lines);
    for (auto it = node.attributes.begin(); it != node.attributes.end(); ++it)
        attributes.Add(it.key(), it->userType() == QMetaType::QString ? Json(it->toString())
                                                                      : Json(it->toInt()));
    Json lists = Json::Object({}, Json::Lines);
    for (auto it = node.lists.begin(); it != node.lists.end(); ++it) {
        const QStringList fields = RowFields(it.key());
        lists.Add(it.key(), Lines(it.value(), [&](const auto& row) { return Row(row, fields); }));
    }
    Json files = Json::Object({}, Json::Lines);
    for (auto it = node.files.begin(); it != node.files.end(); ++it)
        files.Add(it.key(), it.value());
    return Json::Object(
        {{"type", node.type},
         {"pos", Json::List({node.pos.x(), node.pos.y()}, Json::Spaced)},
         {"size", Json::List({node.size.width(), node.size.height()}, Json::Spaced)},
         {"hold", node.hold},
         {"neonEffect", node.neonEffect},
         {"attributes", attributes},
         {"lists", lists},
         {"files", files}},
        Json::Lines);
}

} // namespace

QByteArray SceneToJson(const Scene& scene)
{
    const auto area = [](const SceneArea& from) {
        return Json::Object({{"nodes", Lines(from.nodes, Node)}}, Json::Spaced);
    };
    const auto page = [&](const ScenePage& from) {
        return Json::Object({{"areas", Lines(from.areas, area)}}, Json::Spaced);
    };
    const Json display = Json::Object(
        {{"width", scene.display.width()}, {"height", scene.display.height()}}, Json::Spaced);
    const Json json = Json::Object({{"scene", 1},
                                    {"display", display},
                                    {"alphaBlend", scene.alphaBlend},
                                    {"pages", Lines(scene.pages, page)}},
                                   Json::Lines);
    return json.Text() + '\n';
}

} // namespace AnimText::scene
