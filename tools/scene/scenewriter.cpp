#include "scene/attributes.h"
#include "scene/json.h"
#include "scene/scene.h"

namespace AnimText::scene {

namespace {

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
        Json rows = Json::List({}, Json::Lines);
        for (const QHash<QString, QString>& row : it.value())
            rows.Add(Row(row, fields));
        lists.Add(it.key(), rows);
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
    Json pages = Json::List({}, Json::Lines);
    for (const ScenePage& page : scene.pages) {
        Json areas = Json::List({}, Json::Lines);
        for (const SceneArea& area : page.areas) {
            Json nodes = Json::List({}, Json::Lines);
            for (const SceneNode& node : area.nodes)
                nodes.Add(Node(node));
            areas.Add(Json::Object({{"nodes", nodes}}, Json::Spaced));
        }
        pages.Add(Json::Object({{"areas", areas}}, Json::Spaced));
    }
    const Json display = Json::Object(
        {{"width", scene.display.width()}, {"height", scene.display.height()}}, Json::Spaced);
    const Json json = Json::Object(
        {{"scene", 1}, {"display", display}, {"alphaBlend", scene.alphaBlend}, {"pages", pages}},
        Json::Lines);
    return json.Text() + '\n';
}

} // namespace AnimText::scene
