#include "hostile.h"

#include "samples.h"
#include "scene/attributes.h"

#include <QDebug>
#include <QVariant>

#include <functional>
#include <limits>
#include <random>

using AnimText::scene::SceneNode;

namespace {

constexpr int least = std::numeric_limits<int>::min();
constexpr int most = std::numeric_limits<int>::max();

using Row = QHash<QString, QString>;

struct Bend
{
    QByteArray name;
    std::function<void(HostileScene*)> apply;
    Weight weight;
};

QList<Bend> bends;

void Add(const QByteArray& name, const std::function<void(HostileScene*)>& apply,
         Weight weight = Weight::Light)
{
    bends.append({name, apply, weight});
}

/** A bend for each of @p values, named by its value. */
template <typename Value, typename Apply>
void AddEach(const QByteArray& name, const QVector<Value>& values, const Apply& apply)
{
    for (const Value& value : values) {
        QString told;
        QDebug(&told).nospace() << value;
        Add(name + ' ' + told.left(40).toLatin1(),
            [=](HostileScene* scene) { apply(&scene->node, value); });
    }
}

void AddAttributes()
{
    QStringList numbers = AnimText::scene::KeysOf(AnimText::scene::Home::Attributes);
    numbers.removeAll("Text");
    for (const QString& key : numbers)
        AddEach(key.toLatin1(),
                QVector<QVariant>{least, -2147483640, -1, 2, 10, 65536, 2000000000, most,
                                  QVariant(), "five", "99999999999999"},
                [=](SceneNode* node, const QVariant& value) { node->attributes[key] = value; });
    AddEach("text",
            QVector<QString>{QString(), "   \t ", "x", QString(QChar(0xD83D)), QString(8, QChar(0)),
                             "a\n\r\nb", QString(20000, 'm')},
            [](SceneNode* node, const QString& text) { node->attributes["Text"] = text; });
    for (const QString& key : numbers + QStringList{"Text"})
        Add(key.toLatin1() + " missing",
            [=](HostileScene* scene) { scene->node.attributes.remove(key); });
}

void AddLists()
{
    for (const QString& list : AnimText::scene::ListKeys()) {
        Add(list.toLatin1() + " missing",
            [=](HostileScene* scene) { scene->node.lists.remove(list); });
        // -1: one row less than there are
        AddEach(list.toLatin1() + " of rows:", QVector<int>{0, 1, -1, 10000},
                [=](SceneNode* node, int count) {
                    QList<Row>& rows = node->lists[list];
                    count = count < 0 ? rows.size() - 1 : count;
                    while (rows.size() > count)
                        rows.removeLast();
                    while (rows.size() < count)
                        rows.append(rows.value(0)); // another bend may have left none
                });
        // Absurd numbers meet every motion in tests/golden.
        AddEach(list.toLatin1() + " with", QVector<QString>{QString(), "wide"},
                [=](SceneNode* node, const QString& value) {
                    for (Row& row : node->lists[list]) {
                        row.clear();
                        for (const QString& field : AnimText::scene::RowFields(list))
                            if (!value.isNull())
                                row[field] = value;
                    }
                });
    }
}

/**
 * Columns that hardly grow from one character to the next, so that many overlap,
 * and columns that lead away beyond all numbers.
 */
void AddColumns()
{
    static const Sample endless(QString(2500, QLatin1Char('|')), QSize(64, 20));
    static const Sample lengthy(QString(360, QLatin1Char('|')), QSize(64, 20));
    const auto add = [](const char* name, const Sample& sample, int first, int others) {
        for (int motion : {firstScroll + 2, firstScroll + 3})
            Add(
                name,
                [=, &sample](HostileScene* scene) {
                    scene->node = sample.Node(motion, NoBackground, 9);
                    QList<Row>& rows = scene->node.lists["TextHeight"];
                    for (int i = 0; i < rows.size(); ++i)
                        rows[i]["text_height"] = QString::number(i ? others : first);
                },
                Weight::Slow);
    };
    add("a long column that grows by a pixel", lengthy, 1, 0);
    add("a long column that leads away", endless, least, least);
}

void AddPlaces()
{
    AddEach("area",
            QVector<QSize>{{0, 0},
                           {1, 1},
                           {least, least},
                           {most, most},
                           {most, 1},
                           {1, most},
                           {100000, 100000},
                           {32768, 3},
                           {2, 33000},
                           {70000, 2},
                           {20000, 13000}},
            [](SceneNode* node, const QSize& size) {
                node->size = size;
                // A border of light all along such an area is the host's to paint, and slow.
                node->attributes["CheckNeonBg"] = 0;
            });
    AddEach("place", QVector<int>{least, -40000, 40000, most},
            [](SceneNode* node, int far) { node->pos = QPoint(far, far); });
    AddEach("hold", QVector<int>{least, -1, 0, 1, 1000000, most},
            [](SceneNode* node, int hold) { node->hold = hold; });
    AddEach("neon style", QVector<int>{least, -1, 0, 28, most}, [](SceneNode* node, int style) {
        node->attributes["CheckNeonBg"] = 1;
        node->neonEffect = style;
    });
}

void AddFiles(const QDir& folder)
{
    // Each kind of file with what looks at it.
    const auto add = [](const QString& key, const QList<HostileFile>& files,
                        const QStringList& flags = {}) {
        for (const HostileFile& file : files)
            Add(
                key.toLatin1() + ' ' + file.name,
                [=](HostileScene* scene) {
                    scene->node.files[key] = file.path;
                    for (const QString& flag : flags)
                        scene->node.attributes[flag] = 1;
                    if (key == "NeonGifPath")
                        scene->node.neonEffect = 29;
                },
                file.weight);
        Add(key.toLatin1() + " not named",
            [=](HostileScene* scene) { scene->node.files.remove(key); });
    };
    add("PathData", HostilePathFiles(folder));
    add("DescentVector", HostileDescentFiles(folder));
    const QList<HostileFile> pictures = HostilePictures(folder);
    add("FillImage", pictures, {"CheckPictureFills", "CheckDazzle"});
    add("NeonGifPath", pictures, {"CheckNeonBg"});
    int folders = 0;
    for (const HostileFile& picture : pictures) {
        // Not beside the picture, which may be the folder itself.
        const QString frogs = folder.filePath(QString("frogs %1").arg(++folders));
        folder.mkpath(frogs);
        for (int number = 1; number <= 5 && !picture.path.isEmpty(); ++number)
            QFile::link(picture.path, QString("%1/Frog%2.png").arg(frogs).arg(number));
        Add(
            "frogs " + picture.name,
            [=](HostileScene* scene) {
                scene->frogs = frogs;
                SetMotion(&scene->node, 19 + picture.name.size() % 2, 9);
            },
            picture.weight);
    }
}

} // namespace

QVector<HostileScene> HostileScenes(const QDir& folder)
{
    static const Sample usual(QStringLiteral("Hostile signs"), QSize(64, 20));
    static const Sample large(QStringLiteral("Ab"), QSize(90, 36));
    bends.clear(); // called again for each row that runs alone
    AddAttributes();
    AddLists();
    AddColumns();
    AddPlaces();
    AddFiles(folder);

    std::mt19937 random(20);
    const auto below = [&](int bound) { return int(random() % unsigned(bound)); };
    QVector<HostileScene> scenes;
    const auto add = [&](const QList<Bend>& together) {
        const Sample& sample = scenes.size() % 5 == 4 ? large : usual;
        HostileScene scene;
        scene.node = sample.Node(scenes.size() % motionCount, below(BackgroundCount), below(10));
        scene.alphaBlend = below(2) == 0;
        for (const Bend& bend : together) {
            scene.name += (scene.name.isEmpty() ? "" : ", ") + bend.name;
            scene.weight = qMax(scene.weight, bend.weight);
            bend.apply(&scene);
        }
        scenes.append(scene);
    };
    QList<Bend> light;
    for (const Bend& bend : bends) {
        add({bend});
        if (bend.weight == Weight::Light)
            light.append(bend);
    }
    for (const Bend& bend : light)
        add({bend, light.at(below(light.size())), light.at(below(light.size()))});
    return scenes;
}
