#include "scene/scene.h"
#include "scene/schema.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace AnimText {

namespace {

QByteArray Quoted(const QString& text)
{
    QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

QByteArray Pair(int first, int second)
{
    return '[' + QByteArray::number(first) + ", " + QByteArray::number(second) + ']';
}

QByteArray Value(const QVariant& value)
{
    if (value.userType() == QMetaType::QString)
        return Quoted(value.toString());
    return QByteArray::number(value.toInt());
}

/** @p items on lines of their own between @p open and @p close, which stands at @p indent. */
QByteArray Block(char open, const QList<QByteArray>& items, char close, int indent)
{
    if (items.isEmpty())
        return QByteArray() + open + close;
    const QByteArray line = '\n' + QByteArray(indent + 2, ' ');
    QByteArray block(1, open);
    for (int i = 0; i < items.size(); ++i)
        block += line + items.at(i) + (i + 1 < items.size() ? "," : "");
    return block + '\n' + QByteArray(indent, ' ') + close;
}

QByteArray Row(const QHash<QString, QString>& row, const QStringList& order)
{
    QStringList fields = row.keys();
    fields.sort();
    for (int i = order.size() - 1; i >= 0; --i) {
        if (fields.removeOne(order.at(i)))
            fields.prepend(order.at(i));
    }
    QList<QByteArray> pairs;
    for (const QString& field : fields)
        pairs.append(Quoted(field) + ": " + Quoted(row.value(field)));
    return '{' + pairs.join(", ") + '}';
}

QByteArray Node(const SceneNode& node, int indent)
{
    const int inner = indent + 2;
    QList<QByteArray> attributes;
    for (auto it = node.attributes.begin(); it != node.attributes.end(); ++it)
        attributes.append(Quoted(it.key()) + ": " + Value(it.value()));

    QList<QByteArray> lists;
    for (auto it = node.lists.begin(); it != node.lists.end(); ++it) {
        const QStringList order = RowFields(it.key());
        QList<QByteArray> rows;
        for (const QHash<QString, QString>& row : it.value())
            rows.append(Row(row, order));
        lists.append(Quoted(it.key()) + ": " + Block('[', rows, ']', inner + 2));
    }

    QList<QByteArray> files;
    for (auto it = node.files.begin(); it != node.files.end(); ++it)
        files.append(Quoted(it.key()) + ": " + Quoted(it.value()));

    return Block('{',
                 {"\"type\": " + Quoted(node.type), "\"pos\": " + Pair(node.pos.x(), node.pos.y()),
                  "\"size\": " + Pair(node.size.width(), node.size.height()),
                  "\"hold\": " + QByteArray::number(node.hold),
                  "\"neonEffect\": " + QByteArray::number(node.neonEffect),
                  "\"attributes\": " + Block('{', attributes, '}', inner),
                  "\"lists\": " + Block('{', lists, '}', inner),
                  "\"files\": " + Block('{', files, '}', inner)},
                 '}', indent);
}

} // namespace

QByteArray SceneToJson(const Scene& scene)
{
    QList<QByteArray> pages;
    for (const ScenePage& page : scene.pages) {
        QList<QByteArray> areas;
        for (const SceneArea& area : page.areas) {
            QList<QByteArray> nodes;
            for (const SceneNode& node : area.nodes)
                nodes.append(Node(node, 8));
            areas.append("{\"nodes\": " + Block('[', nodes, ']', 6) + '}');
        }
        pages.append("{\"areas\": " + Block('[', areas, ']', 4) + '}');
    }
    const QByteArray display = "{\"width\": " + QByteArray::number(scene.display.width()) +
                               ", \"height\": " + QByteArray::number(scene.display.height()) + '}';
    return Block('{',
                 {"\"scene\": 1", "\"display\": " + display,
                  QByteArray("\"alphaBlend\": ") + (scene.alphaBlend ? "true" : "false"),
                  "\"pages\": " + Block('[', pages, ']', 2)},
                 '}', 0) +
           '\n';
}

} // namespace AnimText
