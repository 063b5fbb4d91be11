#include "hostile.h"

#include "samples.h"
#include "scene/schema.h"

#include <functional>
#include <limits>
#include <random>

using AnimText::SceneNode;

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

void AddAttributes()
{
    const QVector<int> numbers{least, -2147483640, -1, 2, 10, 65536, 2000000000, most};
    for (const QString& key : AnimText::NumberAttributeKeys()) {
        const QByteArray name = key.toLatin1();
        for (int number : numbers)
            Add(name + ' ' + QByteArray::number(number),
                [=](HostileScene* scene) { scene->node.attributes[key] = number; });
        Add(name + " missing", [=](HostileScene* scene) { scene->node.attributes.remove(key); });
        Add(name + " no number",
            [=](HostileScene* scene) { scene->node.attributes[key] = QStringLiteral("five"); });
        Add(name + " beyond the integers", [=](HostileScene* scene) {
            scene->node.attributes[key] = QStringLiteral("99999999999999");
        });
    }
}

void AddTexts()
{
    const QPair<QByteArray, QString> texts[] = {
        {"empty", QString()},
        {"blanks", QStringLiteral("   \t ")},
        {"one character", QStringLiteral("x")},
        {"half a character", QString(QChar(0xD83D))},
        {"with nulls", QString(8, QChar(0))},
        {"line breaks", QStringLiteral("a\n\r\nb")},
        {"20,000 characters", QString(20000, QLatin1Char('m'))}};
    for (const auto& text : texts)
        Add("text " + text.first, [=](HostileScene* scene) {
            scene->node.attributes[QStringLiteral("Text")] = text.second;
        });
    Add("text missing",
        [](HostileScene* scene) { scene->node.attributes.remove(QStringLiteral("Text")); });
}

void AddLists()
{
    for (const QString& list : AnimText::ListKeys()) {
        const QByteArray name = list.toLatin1();
        Add(name + " missing", [=](HostileScene* scene) { scene->node.lists.remove(list); });
        Add(name + " empty", [=](HostileScene* scene) { scene->node.lists[list].clear(); });
        Add(name + " of one row", [=](HostileScene* scene) {
            scene->node.lists[list] = scene->node.lists[list].mid(0, 1);
        });
        Add(name + " one row short",
            [=](HostileScene* scene) { scene->node.lists[list].removeLast(); });
        Add(name + " of 10,000 rows", [=](HostileScene* scene) {
            const Row row = scene->node.lists[list].value(0);
            while (scene->node.lists[list].size() < 10000)
                scene->node.lists[list].append(row);
        });
        Add(name + " of empty rows", [=](HostileScene* scene) {
            for (Row& row : scene->node.lists[list])
                row.clear();
        });
        // Absurd numbers meet every motion in tests/golden.
        for (const QString& field : AnimText::RowFields(list))
            Add(field.toLatin1() + " no number", [=](HostileScene* scene) {
                for (Row& row : scene->node.lists[list])
                    row[field] = QStringLiteral("wide");
            });
    }
}

/**
 * Columns that hardly grow from one character to the next, so that many lie on top of each other,
 * and columns that lead away beyond all numbers.
 */
void AddColumns()
{
    static const Sample endless(QString(2500, QLatin1Char('|')), QSize(64, 20));
    static const Sample lengthy(QString(360, QLatin1Char('|')), QSize(64, 20));
    static const Sample usual(QStringLiteral("Hostile column"), QSize(64, 30));
    const auto add = [](const char* name, const Sample& sample, int first, int others) {
        for (int motion : {firstScroll + 2, firstScroll + 3})
            Add(
                name,
                [=, &sample](HostileScene* scene) {
                    scene->node = sample.Node(motion, NoBackground, 9);
                    QList<Row>& rows = scene->node.lists[QStringLiteral("TextHeight")];
                    for (int i = 0; i < rows.size(); ++i)
                        rows[i][QStringLiteral("text_height")] =
                            QString::number(i ? others : first);
                },
                Weight::Slow);
    };
    add("a column that grows by a pixel", usual, 1, 0);
    add("a long column that grows by a pixel", lengthy, 1, 0);
    add("a long column that leads away", endless, least, least);
}

void AddPlaces()
{
    const QSize sizes[] = {{0, 0},     {1, 1},     {least, least},   {most, most},
                           {most, 1},  {1, most},  {100000, 100000}, {32768, 3},
                           {2, 33000}, {70000, 2}, {20000, 13000}};
    for (const QSize& size : sizes)
        Add("area " + QByteArray::number(size.width()) + " x " + QByteArray::number(size.height()),
            [=](HostileScene* scene) {
                scene->node.size = size;
                // A border of light all along such an area is the host's to paint, and slow.
                scene->node.attributes[QStringLiteral("CheckNeonBg")] = 0;
            });
    for (int far : {least, -40000, 40000, most})
        Add("place " + QByteArray::number(far),
            [=](HostileScene* scene) { scene->node.pos = QPoint(far, far); });
    for (int hold : {least, -1, 0, 1, 1000000, most})
        Add("hold " + QByteArray::number(hold),
            [=](HostileScene* scene) { scene->node.hold = hold; });
    for (int style : {least, -1, 0, 28, most})
        Add("neon style " + QByteArray::number(style), [=](HostileScene* scene) {
            scene->node.attributes[QStringLiteral("CheckNeonBg")] = 1;
            scene->node.neonEffect = style;
        });
}

void AddFiles(const QDir& folder)
{
    const auto add = [](const QString& key, const QList<HostileFile>& files) {
        for (const HostileFile& file : files)
            Add(
                key.toLatin1() + ' ' + file.name,
                [=](HostileScene* scene) { scene->node.files[key] = file.path; }, file.weight);
        Add(key.toLatin1() + " not named",
            [=](HostileScene* scene) { scene->node.files.remove(key); });
    };
    add(QStringLiteral("PathData"), HostilePathFiles(folder));
    add(QStringLiteral("DescentVector"), HostileDescentFiles(folder));
    for (const HostileFile& picture : HostilePictures(folder)) {
        Add(
            "FillImage " + picture.name,
            [=](HostileScene* scene) {
                scene->node.files[QStringLiteral("FillImage")] = picture.path;
                scene->node.attributes[QStringLiteral("CheckPictureFills")] = 1;
                scene->node.attributes[QStringLiteral("CheckDazzle")] = 1;
            },
            picture.weight);
        Add(
            "NeonGifPath " + picture.name,
            [=](HostileScene* scene) {
                scene->node.files[QStringLiteral("NeonGifPath")] = picture.path;
                scene->node.attributes[QStringLiteral("CheckNeonBg")] = 1;
                scene->node.neonEffect = 29;
            },
            picture.weight);
        const QString frogs = picture.path + QStringLiteral("-frogs");
        folder.mkpath(frogs);
        for (int number = 1; number <= 5 && !picture.path.isEmpty(); ++number)
            QFile::link(picture.path, QStringLiteral("%1/Frog%2.png").arg(frogs).arg(number));
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
    AddAttributes();
    AddTexts();
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
