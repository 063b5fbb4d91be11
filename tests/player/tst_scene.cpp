#include "testscene.h"

#include "scene/catalogue.h"

#include <QtTest>

#include <sys/stat.h>

using namespace AnimText;

namespace {

const char good[] = R"({
  "scene": 1,
  "display": {"width": 512, "height": 64},
  "alphaBlend": true,
  "pages": [{"areas": [{"nodes": [{
    "type": "LW_animationText_Plugin",
    "pos": [0, 8], "size": [512, 48], "hold": 20, "neonEffect": 3,
    "attributes": {"AnimationEffect": 5, "Text": "Hello"},
    "lists": {"TextWidth": [{"text_width": "17"}, {"text_width": "9"}]},
    "files": {"PathData": "paths"}
  }]}]}]
})";

} // namespace

class TestScene : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatIsThere()
    {
        files.Write("good.json", good);
        const QString path = files.Path("good.json");
        Scene scene;
        QString error;
        QVERIFY(!ReadScene(path, &scene, &error)); // the file of the paths is missing
        QVERIFY2(ReadScene(path, &scene, &error, MissingFiles::AreAccepted), qPrintable(error));
        files.Write("paths", "x");
        QVERIFY2(ReadScene(path, &scene, &error), qPrintable(error));
        const auto dense = [](QByteArray json) { return json.replace(' ', "").replace('\n', ""); };
        QCOMPARE(dense(SceneToJson(scene)), dense(good));
        QCOMPARE(scene.FullName(scene.Nodes().first()->files.value("PathData")),
                 files.Path("paths"));
    }

    /**
     * Each row changes one thing of a good scene. A place that starts with "." is in its node, and
     * for the sake of legibility ' stands for ".
     */
    void tellsTheFault_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, QByteArray from, QByteArray to,
                            const QByteArray& place, const char* expected) {
            const char node[] = ": $.pages[0].areas[0].nodes[0]";
            QTest::newRow(name) << from.replace('\'', '"') << to.replace('\'', '"')
                                << QString((place.startsWith('.') ? node : "") + place) << expected;
        };
        row("syntax", "'scene': 1,", "'scene': 1;", ":2:1", "expected valid JSON");
        row("no object", good, "[1, 2]", ": $:", "expected an object, found a list of 2");
        row("empty", good, "", ":1:1:", "expected valid JSON");
        row("other version", "'scene': 1", "'scene': 2", ": $.scene:", "found 2");
        row("no version", "'scene': 1,", "", ": $.scene:", "found nothing");
        row("unknown key", "'alphaBlend'", "'alphaBlond'",
            ": $.alphaBlond:", "did you mean alphaBlend?");
        row("no truth value", "'alphaBlend': true", "'alphaBlend': 1",
            ": $.alphaBlend:", "expected true or false, found 1");
        row("key twice", "'alphaBlend': true", "'scene': 1", ": $.scene:", "found it twice");
        row("display of nothing", "'width': 512", "'width': 0",
            ": $.display.width:", "a whole number from 1 to 16384, found 0");
        row("display too large", "'width': 512, 'height': 64", "'width': 16384, 'height': 16384",
            ": $.display:", "at most 67108864 pixels");
        row("pages no list", "'pages': [{", "'pages': {'areas': 1}, 'x': [{", ": $", "expected");
        row("unknown key of a node", "'hold'", "'hodl'", ".hodl:", "did you mean hold?");
        row("one number", "'size': [512, 48]", "'size': [512]",
            ".size:", "a list of two whole numbers, found a list of 1");
        row("negative size", "'size': [512, 48]", "'size': [512, -1]", ".size[1]:", "found -1");
        row("half a pixel", "'pos': [0, 8]", "'pos': [0.5, 8]", ".pos[0]:", "found 0.5");
        row("no size", "'size': [512, 48],", "", ".size:", "found nothing");
        row("hold as text", "'hold': 20", "'hold': '20'", ".hold:", "found a text");
        row("hold beyond 32 bits", "'hold': 20", "'hold': 3000000000",
            ".hold:", "found 3000000000");
        row("text as number", "'Text': 'Hello'", "'Text': 5",
            ".attributes.Text:", "expected a text, found 5");
        row("number as text", "'AnimationEffect': 5", "'AnimationEffect': '5'",
            ".attributes.AnimationEffect:", "found a text");
        row("unknown attribute", "'AnimationEffect': 5", "'AnimationEfect': 5",
            ".attributes.AnimationEfect:", "did you mean AnimationEffect?");
        row("key twice, once escaped", "'AnimationEffect': 5", "'\\u0054ext': 'x'",
            ".attributes.Text:", "found it twice");
        row("unknown list", "'TextWidth'", "'TextWide'",
            ".lists.TextWide:", "did you mean TextWidth?");
        row("row as number", "{'text_width': '9'}", "9",
            ".lists.TextWidth[1]:", "expected an object, found 9");
        row("field as number", "'text_width': '9'", "'text_width': 9",
            ".lists.TextWidth[1].text_width:", "expected a text, found 9");
        row("field of another list", "'text_width': '9'", "'text_height': '9'",
            ".lists.TextWidth[1].text_height:", "expected one of text_width");
        row("missing file", "'PathData': 'paths'", "'PathData': 'none'",
            ".files.PathData:", "expected a file, found no file ");
        row("file without a name", "'PathData': 'paths'", "'PathData': ''",
            ".files.PathData:", "expected the name of a file");
    }

    void tellsTheFault()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QString, place);
        QFETCH(QString, expected);
        files.Write("paths", "x");
        files.Write("bad.json", QByteArray(good).replace(from, to));
        const QString path = files.Path("bad.json");
        Scene scene;
        scene.display = QSize(7, 7);
        QString error;
        QVERIFY(!ReadScene(path, &scene, &error));
        QVERIFY2(error.startsWith(path + place), qPrintable(error));
        QVERIFY2(error.contains(expected) && !error.contains('\n'), qPrintable(error));
        QCOMPARE(scene.display, QSize(7, 7)); // left as it was
    }

    void tellsAllFaultsAtOnce()
    {
        const QByteArray json = R"({"scene": 1, "display": {"width": 0}, "alphaBlend": null,
            "pages": [{"areas": [7, {"nodes": [{"size": [1, 2.5], "attributes": {"Texd": 2, "Text": 1},
            "lists": {"TextWidth": [{"text_width": 5}, {"text_width": "9"}, 8, {"text_width": 6}]}}, 5]}]}, 6]})";
        Scene scene;
        QStringList lines;
        for (const SceneFault& fault : ReadSceneText(json, "s", &scene, MissingFiles::AreErrors))
            lines.append(fault.Line("s").remove("pages[0].areas[1].nodes[0].").left(40));
        QCOMPARE(lines.join('\n'), QString(R"(s: $.display.width: expected a whole num
s: $.display.height: expected a whole nu
s: $.alphaBlend: expected true or false,
s: $.pages[0].areas[0]: expected an obje
s: $.size[1]: expected a whole number fr
s: $.attributes.Texd: expected one of Te
s: $.attributes.Text: expected a text, f
s: $.lists.TextWidth[0].text_width: expe
s: $.lists.TextWidth[2]: expected an obj
s: $.pages[0].areas[1].nodes[1]: expecte
s: $.pages[1]: expected an object, found)"));

        const char* const places[] = {"$.a", "$.b[1].c"};
        const QByteArray twice = R"({"a": 1, "a": 2, "b": [0, {"c": 1, "d": 2, "c": 3}]})";
        const QList<SceneFault> faults = ReadSceneText(twice, "s", &scene, MissingFiles::AreErrors);
        QCOMPARE(faults.size(), 2);
        for (int i = 0; i < 2; ++i)
            QCOMPARE(faults[i].place, QString(places[i]));
        // Of another version no more is known.
        QCOMPARE(
            ReadSceneText("{\"scene\": 2, \"x\": 1}", "s", &scene, MissingFiles::AreErrors).size(),
            1);
    }

    void tellsOddFiles()
    {
        // A pipe is refused without waiting for a writer.
        QCOMPARE(mkfifo(QFile::encodeName(files.Path("pipe")).constData(), 0600), 0);
        const QList<QStringList> cases{{"nowhere.json", "no such file"},
                                       {".", "no regular file"},
                                       {"pipe", "no regular file"}};
        for (const QStringList& words : cases) {
            Scene scene;
            QString error;
            QVERIFY(!ReadScene(files.Path(words.first()), &scene, &error));
            QVERIFY2(error.contains(words.last()), qPrintable(error));
        }
    }

    void comesBackAsItWasWritten()
    {
        SceneNode node = files.Node({"a\"b\\c\n\tŻ𝄞", 8, 3, -1, 2});
        node.pos = QPoint(-3, 5);
        node.neonEffect = 30;
        Scene scene = files.Of({node, files.Node({})});
        scene.alphaBlend = false;
        scene.pages.append(ScenePage());
        scene.pages.append(ScenePage{{SceneArea(), SceneArea{{files.Node({})}}}});
        Scene back;
        QString error;
        QVERIFY2(ReadScene(files.Save(scene), &back, &error), qPrintable(error));
        QCOMPARE(SceneToJson(back), SceneToJson(scene));
        QCOMPARE(back.alphaBlend, false);
        QCOMPARE(back.pages.at(2).areas.at(1).nodes.size(), 1);
        QCOMPARE(back.Nodes().first()->attributes, node.attributes);
    }

    void findsMotions()
    {
        for (const Motion& effect : Effects()) {
            QCOMPARE(FindEffect(QString::number(effect.number)), &effect);
            QCOMPARE(FindEffect(QString(effect.name).toUpper()), &effect);
        }
        for (const char* word : {"30", "-1", ""})
            QVERIFY2(!FindEffect(word), word);
        QCOMPARE(FindScroll("Up")->number, 2);
        QCOMPARE(FindScroll("continueeffectdown")->number, 3);
        QVERIFY(!FindScroll("sideways"));
    }

private:
    TestScenes files;
};

QTEST_GUILESS_MAIN(TestScene)

#include "tst_scene.moc"
