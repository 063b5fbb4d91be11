#include "testfolder.h"

#include "author/glyphfiles.h"
#include "validate/validate.h"

#include "scene/scene.h"

#include <QPainterPath>
#include <QtTest>

using namespace AnimText;

namespace {

/** Rows of a list whose only field is @p field; @p values are divided by commas. */
QList<QHash<QString, QString>> Rows(const char* field, const QString& values)
{
    QList<QHash<QString, QString>> rows;
    for (const QString& value : values.split(','))
        rows.append({{field, value}});
    return rows;
}

/** Two rectangles for "ab" in an area of 100 x 20. */
Scene Clean()
{
    SceneNode node;
    node.size = QSize(100, 20);
    node.hold = 20;
    node.attributes = {
        {"Text", "ab"}, {"AnimationEffect", 4}, {"AnimationSpeed", 5}, {"PlayTimes", 1}};
    const QHash<QString, QString> style = {
        {"fontName", "DejaVu Sans"}, {"fontSize", "12"}, {"bold", "0"}, {"italic", "0"},
        {"underline", "0"},          {"Color", "255"}};
    node.lists = {{"TextWidth", Rows("text_width", "10,10")},
                  {"TextHeight", Rows("text_height", "20,20")},
                  {"TextAttribute", {style, style}}};
    node.files = {{"PathData", "two.path"}, {"DescentVector", "two.descent"}};
    Scene scene;
    scene.display = node.size;
    scene.pages = {ScenePage{{SceneArea{{node}}}}};
    return scene;
}

/** Makes changes like "hold=5 TextWidth=10,20". Those of a style are made in the second row. */
void Change(Scene* scene, const QString& changes)
{
    SceneNode* const node = &scene->pages[0].areas[0].nodes[0];
    for (const QString& change : changes.split(' ')) {
        const QString key = change.section('=', 0, 0);
        const QString value = change.section('=', 1);
        if (key == "alphaBlend")
            scene->alphaBlend = value.toInt() == 1;
        else if (key == "type")
            node->type = value;
        else if (key == "width")
            node->size.setWidth(value.toInt());
        else if (key == "x")
            node->pos.setX(value.toInt());
        else if (key == "hold")
            node->hold = value.toInt();
        else if (key == "neon")
            node->neonEffect = value.toInt();
        else if (key == "bold" || key == "Color")
            node->lists["TextAttribute"][1][key] = value;
        else if (key == "text_width")
            node->lists["TextWidth"] = Rows("text_width", value);
        else if (key == "text_height")
            node->lists["TextHeight"] = Rows("text_height", value);
        else if (node->files.contains(key) || key == "FillImage")
            node->files[key] = value;
        else
            node->attributes[key] = key == "Text" ? QVariant(value) : QVariant(value.toInt());
    }
}

} // namespace

class tst_validate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QPainterPath box;
        box.addRect(0, -10, 8, 10);
        QPainterPath far;
        far.addRect(0, 0, 2e6, 1);
        folder.Write("two.path", PathFile({box, box}));
        folder.Write("one.path", PathFile({box}));
        folder.Write("three.path", PathFile({box, box, box}));
        folder.Write("far.path", PathFile({box, far}));
        folder.Write("gap.path", PathFile({box, QPainterPath()}));
        folder.Write("two.descent", DescentFile({4, 4}));
        folder.Write("one.descent", DescentFile({4}));
        folder.Write("torn", PathFile({box, box}).left(60));
    }

    void findingsOnANode_data()
    {
        QTest::addColumn<QString>("codes"); // all of them, sorted; those of errors with a !
        QTest::addColumn<QString>("place"); // of the first, behind the node's
        const auto row = [](const char* changes, const char* codes, const char* place) {
            QTest::newRow(changes) << QString(codes) << QString(place);
        };
        row("hold=20", "", "");
        row("type=Clock", "node-type!", ".type");
        row("width=0", "area-empty! character-wide", ".size");
        row("x=1", "area-outside", ".pos");
        row("EffectType=1 text_width=2000000,2000000", "canvas-large! line-long", ".size");
        row("EffectType=1 text_width=2000000,2000000 alphaBlend=0", "line-long",
            ".lists.TextWidth");
        row("hold=-1", "hold-range", ".hold");
        row("Text=", "data-surplus list-surplus text-empty", ".attributes.Text");
        row("EffectType=2", "mode-unknown!", ".attributes.EffectType");
        row("AnimationEffect=30", "effect-unknown!", ".attributes.AnimationEffect");
        row("EffectType=1 ContinueStyle=4", "direction-unknown!", ".attributes.ContinueStyle");
        row("AnimationSpeed=10", "speed-range!", ".attributes.AnimationSpeed");
        row("EffectType=1 ContinueSpeed=-1", "speed-range!", ".attributes.ContinueSpeed");
        row("PlayTimes=0", "plays-range", ".attributes.PlayTimes");
        row("Hollow=2", "flag-value", ".attributes.Hollow");
        row("CheckColorGradient=1", "gradient-ignored", ".attributes.CheckColorGradient");
        row("CheckColorGradient=1 CheckDazzle=1", "", "");
        row("CheckPictureFills=1 FillImage=two.path", "picture-ignored",
            ".attributes.CheckPictureFills");
        row("CheckPictureFills=1 CheckDazzle=1", "picture-missing", ".files.FillImage");
        row("CheckNeonBg=1 neon=29", "picture-missing", ".files.NeonGifPath");
        row("CheckNeonBg=1 neon=28", "", "");
        row("Stroke=1", "stroke-ignored", ".attributes.Stroke");
        row("CheckShadowEffect=1", "shadow-ignored", ".attributes.CheckShadowEffect");
        row("text_width=10", "list-length!", ".lists.TextWidth");
        row("text_width=10,10,10", "list-surplus", ".lists.TextWidth");
        row("text_width=10,-1", "row-value!", ".lists.TextWidth[1].text_width");
        row("text_height=,20", "row-value!", ".lists.TextHeight[0].text_height");
        row("bold=yes", "row-value!", ".lists.TextAttribute[1].bold");
        row("Color=-1", "colors-ignored", ".lists.TextAttribute[1].Color");
        row("text_width=10,100 text_height=19,20", "", "");
        row("text_width=10,101", "character-wide", ".lists.TextWidth[1].text_width");
        row("EffectType=1 text_width=10,101", "", "");
        row("text_height=20,21", "text-high", ".lists.TextHeight[1].text_height");
        row("EffectType=1 text_width=31998,1", "", "");
        row("EffectType=1 text_width=31999,1", "line-long", ".lists.TextWidth");
        row("PathData=none", "file-missing!", ".files.PathData");
        row("DescentVector=", "file-missing!", ".files.DescentVector");
        row("PathData=torn", "data-malformed!", ".files.PathData");
        row("PathData=one.path", "data-length!", ".files.PathData");
        row("PathData=three.path", "data-surplus", ".files.PathData");
        row("PathData=far.path", "outline-malformed!", ".files.PathData");
        row("PathData=gap.path", "outline-empty", ".files.PathData");
        row("PathData=gap.path text_width=20,0", "", "");
    }

    void findingsOnANode()
    {
        QFETCH(QString, codes);
        QFETCH(QString, place);
        Scene scene = Clean();
        Change(&scene, QTest::currentDataTag());
        QCOMPARE(Codes(SceneToJson(scene)).join(' '), codes);
        for (const Finding& finding : findings)
            QVERIFY(!finding.found.isEmpty() && !finding.expected.isEmpty());
        if (!findings.isEmpty())
            QCOMPARE(findings.first().place, "$.pages[0].areas[0].nodes[0]" + place);
        scene.path = folder.Path("sign.json");
        QCOMPARE(ErrorsOf(scene).size(), codes.count('!'));
    }

    void findingsOnScenesWithoutNodes()
    {
        QCOMPARE(Codes("{\"scene\": 1,"), QStringList("scene-unreadable!"));
        QCOMPARE(findings[0].place, QString("1:13"));
        Scene empty;
        empty.display = QSize(10, 10);
        QCOMPARE(Codes(SceneToJson(empty)), QStringList("scene-empty"));
    }

    void faultsOfStructureAreAllFound()
    {
        const QByteArray rows =
            "[{\"text_width\": 5}, {\"text_width\": \"5\"}, {\"text_width\": 6}]";
        const QByteArray json = SceneToJson(Clean()).replace("\"hold\": 20", "\"hold\": []");
        const int list = json.indexOf('[', json.indexOf("TextWidth"));
        Codes(QByteArray(json).replace(list, json.indexOf(']', list) + 1 - list, rows));
        QCOMPARE(findings.size(), 2);
        QVERIFY(findings[0].Line().startsWith(
            "scene-unreadable at $.pages[0].areas[0].nodes[0].hold: found "
            "a list of 0, expected a whole number from "));
        QCOMPARE(findings[1].found, QString("5 and 1 more like it"));
    }

    void everyCodeWasFound()
    {
        if (seen.isEmpty())
            QSKIP("the other tests did not run");
        for (int i = 0; i < mistakeCount; ++i)
            QVERIFY2(seen.contains(RuleFor(Mistake(i)).code), RuleFor(Mistake(i)).code);
    }

private:
    /** The codes of all findings on @p scene, sorted. */
    QStringList Codes(const QByteArray& scene)
    {
        findings = ValidateScene(folder.Write("sign.json", scene));
        QStringList codes;
        for (const Finding& finding : findings)
            codes.append(finding.GetRule().code +
                         QString(finding.GetRule().severity == Severity::Error ? "!" : ""));
        codes.removeDuplicates();
        codes.sort();
        for (const Finding& finding : findings)
            seen.insert(finding.GetRule().code);
        return codes;
    }

    TestFolder folder;
    QList<Finding> findings;
    QSet<QString> seen; // codes
};

QTEST_GUILESS_MAIN(tst_validate)
#include "tst_validate.moc"
