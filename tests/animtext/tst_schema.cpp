// The schema of scene files against the reader, and the documents made from the same table.
#include "testscene.h"

#include "scene/attributes.h"
#include "scene/catalog.h"

#include <QtTest>

using namespace AnimText;

namespace {

/** Prints the name of each file that the schema refuses. */
const char judge[] = R"(
import json, jsonschema, sys
schema = json.load(open(sys.argv[1]))
jsonschema.Draft7Validator.check_schema(schema)
validator = jsonschema.Draft7Validator(schema)
for name in sys.argv[2:]:
    if not validator.is_valid(json.load(open(name))):
        print(name)
)";

/** @p scene with @p json for the value of @p attribute in its only node. */
QByteArray With(const scene::Scene& scene, const scene::Attribute& attribute,
                const QByteArray& json)
{
    scene::Scene changed = scene;
    scene::SceneNode& node = changed.At({});
    const QByteArray key = attribute.key;
    const QString mark = QStringLiteral("MARK");
    const QByteArray pos = "\"pos\": [0, 0]";
    const QByteArray size = "\"size\": [64, 32]";
    switch (attribute.home) {
    case scene::Home::Attributes: node.attributes[key] = mark; break;
    case scene::Home::Files: node.files[key] = mark; break;
    case scene::Home::Node:
        return scene::SceneToJson(changed).replace(key == "type"
                                                       ? "\"type\": \"" + node.type.toUtf8() + '"'
                                                   : key == "pos"  ? pos
                                                   : key == "size" ? size
                                                                   : '"' + key + "\": 0",
                                                   '"' + key + "\": " + json);
    default:
        node.lists[scene::ListKeys()[int(attribute.home) - int(scene::Home::TextAttribute)]][0]
                  [key] = mark;
    }
    return scene::SceneToJson(changed).replace("\"MARK\"", json);
}

} // namespace

class TestSchema : public QObject
{
    Q_OBJECT

private slots:
    /** Accepts what can be read and is in its range, and nothing else. */
    void judgesAsTheTableDoes()
    {
        const scene::Scene scene = files.Of({files.Node({})});
        QMap<QString, bool> expected;
        const auto add = [&](const QString& name, const QByteArray& json, bool isGood) {
            scene::Scene read;
            QString error;
            const bool isRead =
                scene::ReadSceneText(json, "x", &read, &error, scene::MissingFiles::AreAccepted);
            expected.insert(files.Write(name + ".json", json), isRead && isGood);
        };
        for (const scene::Attribute& attribute : scene::Attributes()) {
            const bool isRow =
                attribute.home != scene::Home::Node && attribute.home != scene::Home::Attributes;
            const bool isNumber = attribute.least != attribute.most;
            const auto value = [&](const QByteArray& json, bool isGood) {
                const QByteArray written = attribute.kind == scene::ValueKind::Pair
                                               ? "[1, " + json + ']'
                                           : isRow && json != "true" ? '"' + json + '"'
                                                                     : json;
                add(QString("%1-%2").arg(attribute.key, QString::fromLatin1(json.toHex())),
                    With(scene, attribute, written), isGood);
            };
            value("true", false);
            if (isNumber) {
                const qint64 least = attribute.least;
                const qint64 most = attribute.most;
                for (qint64 number : {least - 1, least, most, most + 1}) {
                    // Rows hold texts of digits, whose range the schema does not check.
                    const bool isGood = isRow && attribute.kind != scene::ValueKind::Flag
                                            ? number >= 0
                                            : number >= least && number <= most;
                    value(QByteArray::number(number), isGood);
                }
                value("0.5", false);
                value(isRow ? "x" : "\"x\"", false);
            } else if (attribute.key != QString("type")) {
                value(isRow ? "name" : "\"name\"", true);
            }
        }
        const QByteArray good = scene::SceneToJson(scene);
        const auto change = [&](const char* from, const char* to) {
            add(QByteArray(from).toHex(), QByteArray(good).replace(from, to), true);
        };
        change("\"scene\": 1", "\"scene\": 2");
        change("\"scene\": 1,", "");
        change("\"width\": 64, ", "");
        change("\"height\": 32", "\"height\": 0");
        change("\"alphaBlend\": true", "\"alphaBlend\": 1");
        change("\"alphaBlend\": true,", "");
        change("\"nodes\": [", "\"knots\": [");
        change("{\"areas\": [", "{\"areas\": [1, ");
        change("\"hold\"", "\"Hold\"");
        change("\"PlayTimes\"", "\"playTimes\"");
        change("\"size\": [64, 32],", "");
        change("\"size\"", "\"Size\"");
        change("\"text_width\"", "\"TextWidth\"");
        change("\"PathData\"", "\"PathDate\"");
        for (int effect = 0; effect < scene::Effects().size(); ++effect)
            add(QString::number(effect),
                scene::SceneToJson(files.Of({files.Node({"abc", effect})})), true);

        files.Write("judge.py", judge);
        const Outcome outcome = files.Shell("animtext schema > schema && "
                                            "/usr/bin/python3 judge.py schema $PWD/*.json");
        QVERIFY2(outcome.status == 0, outcome.errors);
        const QStringList refused = QString(outcome.out).split('\n');
        QVERIFY(expected.size() > 150);
        for (auto it = expected.begin(); it != expected.end(); ++it)
            QVERIFY2(refused.contains(it.key()) != it.value(), qPrintable(it.key()));
    }

    /** Whatever authoring writes is what the schema asks for. */
    void acceptsAuthoredScenes()
    {
        files.Write("judge.py", judge);
        const Outcome outcome = files.Shell(
            "set -e; mkdir a; animtext schema > schema; exec 3>&1 > log; animtext author -o "
            "a/1.json --text 'a b';"
            "animtext author -o a/2.json --markup --text '<b>a</b><font color=\"red\">b</font>' "
            "--dazzle=radial --neon 3 --no-alpha --scroll up; cp a/1.json a/3.json;"
            "animtext author -o a/3.json --text ש --page 2 --hollow --pos 1,-1 --hold 3s;"
            "/usr/bin/python3 judge.py schema a/*.json >&3");
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray());
    }

    void documentsAreCurrent()
    {
        const QString root = QString(PROJECT_ROOT).replace("'", "'\\''");
        const Outcome outcome =
            files.Shell("ANIMTEXT=$(command -v animtext) '" + root + "/script/scene-docs' --check");
        QVERIFY2(outcome.status == 0, outcome.out + outcome.errors);
    }

private:
    TestScenes files;
};

QTEST_GUILESS_MAIN(TestSchema)
#include "tst_schema.moc"
