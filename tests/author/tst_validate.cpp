#include "glyphfiles.h"
#include "validate.h"

#include "scene.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainterPath>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

using namespace AnimText;

namespace {

using Change = std::function<void(Scene*, SceneNode*)>;

QString Key(const char* key)
{
    return QString::fromLatin1(key);
}

QList<QHash<QString, QString>> Rows(const char* field, const QVector<int>& values)
{
    QList<QHash<QString, QString>> rows;
    for (int value : values)
        rows.append({{Key(field), QString::number(value)}});
    return rows;
}

/** A change of one attribute. */
Change Set(const char* key, int value)
{
    return [=](Scene*, SceneNode* node) { node->attributes[Key(key)] = value; };
}

Change Both(const Change& first, const Change& second)
{
    return [=](Scene* scene, SceneNode* node) {
        first(scene, node);
        second(scene, node);
    };
}

Change Widths(const QVector<int>& widths)
{
    return [=](Scene*, SceneNode* node) {
        node->lists[Key("TextWidth")] = Rows("text_width", widths);
    };
}

Change NamesFile(const char* key, const char* file)
{
    return [=](Scene*, SceneNode* node) { node->files[Key(key)] = Key(file); };
}

} // namespace

Q_DECLARE_METATYPE(Change)

class ValidateTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanSceneHasNone();
    void findings_data();
    void findings();
    void unreadable();
    void reports();
    void everyCodeWasFound();

private:
    void WriteFile(const char* name, const QByteArray& content)
    {
        QFile file(folder.filePath(Key(name)));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    Scene Clean() const;
    QList<Finding> Findings(const Scene& scene)
    {
        WriteFile("sign.json", SceneToJson(scene));
        return Findings();
    }
    QList<Finding> Findings()
    {
        const auto findings = ValidateScene(folder.filePath(QStringLiteral("sign.json")));
        for (const Finding& finding : findings)
            seen.insert(Key(finding.rule->code));
        return findings;
    }

    QTemporaryDir folder;
    QSet<QString> seen; // codes
};

/** Two rectangles for "ab" in an area of 100 x 20. */
Scene ValidateTest::Clean() const
{
    SceneNode node;
    node.size = QSize(100, 20);
    node.hold = 20;
    node.attributes = {{Key("Text"), Key("ab")},
                       {Key("AnimationEffect"), 4},
                       {Key("AnimationSpeed"), 5},
                       {Key("PlayTimes"), 1}};
    node.lists = {{Key("TextWidth"), Rows("text_width", {10, 10})},
                  {Key("TextHeight"), Rows("text_height", {20, 20})}};
    const QHash<QString, QString> style = {{Key("fontName"), Key("DejaVu Sans")},
                                           {Key("fontSize"), Key("12")},
                                           {Key("bold"), Key("0")},
                                           {Key("italic"), Key("0")},
                                           {Key("underline"), Key("0")},
                                           {Key("Color"), Key("255")}};
    node.lists[Key("TextAttribute")] = {style, style};
    node.files = {{Key("PathData"), Key("two.path")}, {Key("DescentVector"), Key("two.descent")}};
    Scene scene;
    scene.display = node.size;
    scene.pages = {ScenePage{{SceneArea{{node}}}}};
    return scene;
}

void ValidateTest::initTestCase()
{
    QPainterPath box;
    box.addRect(0, -10, 8, 10);
    QPainterPath far;
    far.addRect(0, 0, 2e6, 1);
    WriteFile("two.path", PathFile({box, box}));
    WriteFile("one.path", PathFile({box}));
    WriteFile("three.path", PathFile({box, box, box}));
    WriteFile("far.path", PathFile({box, far}));
    WriteFile("gap.path", PathFile({box, QPainterPath()}));
    WriteFile("two.descent", DescentFile({4, 4}));
    WriteFile("one.descent", DescentFile({4}));
    WriteFile("torn", PathFile({box, box}).left(60));
}

void ValidateTest::cleanSceneHasNone()
{
    const QList<Finding> none = Findings(Clean());
    QVERIFY2(none.isEmpty(), FindingsAsText(QString(), none).constData());
}

void ValidateTest::findings_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("codes"); // all of them, sorted
    QTest::addColumn<QString>("place"); // of the first, behind the node's

    const auto row = [](const char* codes, const char* place, const Change& change) {
        QTest::addRow("%s at %s", codes, place) << change << Key(codes) << Key(place);
    };
    const auto node = [](const std::function<void(SceneNode*)>& change) {
        return Change([=](Scene*, SceneNode* node) { change(node); });
    };
    const Change sideways = Both(Set("EffectType", 1), Set("ContinueSpeed", 5));

    row("node-type", ".type", node([](SceneNode* n) { n->type = Key("Clock"); }));
    row("area-empty character-wide", ".size", node([](SceneNode* n) { n->size = QSize(0, 20); }));
    row("area-outside", ".pos", node([](SceneNode* n) { n->pos = QPoint(1, 0); }));
    row("canvas-large line-long", ".size",
        Both(sideways, Both(Widths({2000000, 2000000}),
                            node([](SceneNode* n) { n->size = QSize(100, 20); }))));
    row("hold-range", ".hold", node([](SceneNode* n) { n->hold = -1; }));
    row("data-surplus list-surplus text-empty", ".attributes.Text",
        node([](SceneNode* n) { n->attributes.remove(Key("Text")); }));
    row("mode-unknown", ".attributes.EffectType", Set("EffectType", 2));
    row("effect-unknown", ".attributes.AnimationEffect", Set("AnimationEffect", 30));
    row("effect-unknown", ".attributes.AnimationEffect", Set("AnimationEffect", -1));
    row("direction-unknown", ".attributes.ContinueStyle", Both(sideways, Set("ContinueStyle", 4)));
    row("speed-range", ".attributes.AnimationSpeed", Set("AnimationSpeed", 10));
    row("speed-range", ".attributes.ContinueSpeed", Both(sideways, Set("ContinueSpeed", -1)));
    row("plays-range", ".attributes.PlayTimes", Set("PlayTimes", 0));
    for (const char* flag : {"CheckDazzle", "CheckNeonBg", "Hollow"})
        QTest::addRow("flag-value %s", flag)
            << Set(flag, 2) << Key("flag-value") << Key(".attributes.") + Key(flag);
    row("gradient-ignored", ".attributes.CheckColorGradient", Set("CheckColorGradient", 1));
    row("", "", Both(Set("CheckColorGradient", 1), Set("CheckDazzle", 1)));
    row("picture-ignored", ".attributes.CheckPictureFills",
        Both(Set("CheckPictureFills", 1), NamesFile("FillImage", "two.path")));
    row("picture-missing", ".files.FillImage",
        Both(Set("CheckPictureFills", 1), Set("CheckDazzle", 1)));
    row("picture-missing", ".files.NeonGifPath",
        Both(Set("CheckNeonBg", 1), node([](SceneNode* n) { n->neonEffect = 29; })));
    row("", "", Both(Set("CheckNeonBg", 1), node([](SceneNode* n) { n->neonEffect = 28; })));
    row("stroke-ignored", ".attributes.Stroke", Set("Stroke", 1));
    row("shadow-ignored", ".attributes.CheckShadowEffect", Set("CheckShadowEffect", 1));
    row("list-length", ".lists.TextWidth", Widths({10}));
    row("list-length", ".lists.TextHeight",
        node([](SceneNode* n) { n->lists.remove(Key("TextHeight")); }));
    row("list-surplus", ".lists.TextWidth", Widths({10, 10, 10}));
    row("row-value", ".lists.TextWidth[1].text_width", Widths({10, -1}));
    row("row-value", ".lists.TextHeight[0].text_height",
        node([](SceneNode* n) { n->lists[Key("TextHeight")][0].clear(); }));
    row("row-value", ".lists.TextAttribute[1].bold",
        node([](SceneNode* n) { n->lists[Key("TextAttribute")][1][Key("bold")] = Key("yes"); }));
    row("colors-ignored", ".lists.TextAttribute[1].Color",
        node([](SceneNode* n) { n->lists[Key("TextAttribute")][1][Key("Color")] = Key("1"); }));
    row("character-wide", ".lists.TextWidth[1].text_width", Widths({10, 101}));
    row("", "", Both(sideways, Widths({10, 101})));
    row("text-high", ".lists.TextHeight[1].text_height", node([](SceneNode* n) {
            n->lists[Key("TextHeight")] = Rows("text_height", {20, 21});
        }));
    row("", "", Both(sideways, Widths({31998, 1})));
    row("line-long", ".lists.TextWidth", Both(sideways, Widths({31999, 1})));
    row("file-missing", ".files.PathData", NamesFile("PathData", "none"));
    row("file-missing", ".files.FillImage", NamesFile("FillImage", "none"));
    row("file-missing", ".files.DescentVector",
        node([](SceneNode* n) { n->files.remove(Key("DescentVector")); }));
    row("data-malformed", ".files.PathData", NamesFile("PathData", "torn"));
    row("data-malformed", ".files.DescentVector", NamesFile("DescentVector", "torn"));
    row("data-length", ".files.PathData", NamesFile("PathData", "one.path"));
    row("data-length", ".files.DescentVector", NamesFile("DescentVector", "one.descent"));
    row("data-surplus", ".files.PathData", NamesFile("PathData", "three.path"));
    row("outline-malformed", ".files.PathData", NamesFile("PathData", "far.path"));
    row("outline-empty", ".files.PathData", NamesFile("PathData", "gap.path"));
    row("", "", Both(NamesFile("PathData", "gap.path"), Widths({20, 0})));
    // A play takes 2 x 66 ms at speed 9 and 2 s of hold; one scroll up 40 x 66 ms.
    row("duration-wraps", "", Both(Set("PlayTimes", 1000000000), Set("AnimationSpeed", 9)));
    row("duration-wraps", "",
        Both(sideways, Both(Set("ContinueStyle", 2), Set("PlayTimes", 900000))));
    row("", "", Both(sideways, Both(Set("ContinueStyle", 2), Set("PlayTimes", 800000))));
}

void ValidateTest::findings()
{
    QFETCH(Change, change);
    QFETCH(QString, codes);
    QFETCH(QString, place);
    Scene scene = Clean();
    change(&scene, &scene.pages[0].areas[0].nodes[0]);
    const QList<Finding> findings = Findings(scene);
    QStringList found;
    for (const Finding& finding : findings) {
        found.append(Key(finding.rule->code));
        QVERIFY(!finding.found.isEmpty() && !finding.expected.isEmpty());
    }
    found.removeDuplicates();
    found.sort();
    QCOMPARE(found.join(QLatin1Char(' ')), codes);
    if (!findings.isEmpty())
        QCOMPARE(findings.first().place, Key("$.pages[0].areas[0].nodes[0]") + place);
}

void ValidateTest::unreadable()
{
    WriteFile("sign.json", "{\"scene\": 1,");
    const QString path = folder.filePath(QStringLiteral("sign.json"));
    QList<Finding> findings = Findings();
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings[0].rule->code, "scene-unreadable");
    QVERIFY(findings[0].found.startsWith(path));

    Scene empty;
    empty.display = QSize(10, 10);
    findings = Findings(empty);
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings[0].rule->code, "scene-empty");
}

void ValidateTest::reports()
{
    Scene scene = Clean();
    SceneNode& node = scene.pages[0].areas[0].nodes[0];
    node.attributes[Key("AnimationSpeed")] = 12;
    node.attributes[Key("Stroke")] = 1;
    const QList<Finding> findings = Findings(scene);
    const QJsonObject report =
        QJsonDocument::fromJson(FindingsAsJson(Key("sign.json"), findings)).object();
    QCOMPARE(report.value(Key("errors")).toInt(), 1);
    QCOMPARE(report.value(Key("warnings")).toInt(), 1);
    const QJsonObject first = report.value(Key("findings")).toArray().at(0).toObject();
    QCOMPARE(first.value(Key("code")).toString(), Key("speed-range"));
    QCOMPARE(first.value(Key("severity")).toString(), Key("error"));
    QCOMPARE(first.value(Key("found")).toString(), Key("12"));
    QVERIFY(!first.value(Key("why")).toString().isEmpty());

    const QByteArray text = FindingsAsText(Key("sign.json"), findings);
    QVERIFY(text.startsWith("sign.json: 1 error, 1 warning\n"));
    for (const Finding& finding : findings)
        QVERIFY(text.contains(finding.place.toUtf8()) && text.contains(finding.rule->why));
}

void ValidateTest::everyCodeWasFound()
{
    if (seen.isEmpty())
        QSKIP("the other tests did not run");
    for (const Rule& rule : Rules())
        QVERIFY2(seen.contains(Key(rule.code)), rule.code);
}

QTEST_GUILESS_MAIN(ValidateTest)
#include "tst_validate.moc"
