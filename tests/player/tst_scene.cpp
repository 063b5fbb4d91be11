#include "testscene.h"

#include "scene/catalog.h"

#include <QtTest>

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
        scene::Scene scene;
        scene.display = QSize(7, 7);
        QString error;
        QVERIFY(!scene::ReadScene(path, &scene, &error)); // the file of the paths is missing
        QVERIFY2(error.startsWith(path + ": $.pages[0].areas[0].nodes[0].files.PathData: expected"),
                 qPrintable(error));
        QCOMPARE(scene.display, QSize(7, 7)); // left as it was
        QVERIFY2(scene::ReadScene(path, &scene, &error, scene::MissingFiles::AreAccepted),
                 qPrintable(error));
        files.Write("paths", "x");
        QVERIFY2(scene::ReadScene(path, &scene, &error), qPrintable(error));
        const auto dense = [](QByteArray json) { return json.replace(' ', "").replace('\n', ""); };
        QCOMPARE(dense(scene::SceneToJson(scene)), dense(good));
        QCOMPARE(scene.FullName(scene.Nodes().first()->files.value("PathData")),
                 files.Path("paths"));
    }

    void comesBackAsItWasWritten()
    {
        scene::SceneNode node = files.Node({"a\"b\\c\n\tŻ𝄞", 8, 3, -1, 2});
        node.pos = QPoint(-3, 5);
        node.neonEffect = 30;
        scene::Scene scene = files.Of({node, files.Node({})});
        scene.alphaBlend = false;
        scene.pages.append(scene::ScenePage());
        scene.pages.append(
            scene::ScenePage{{scene::SceneArea(), scene::SceneArea{{files.Node({})}}}});
        scene::Scene back;
        QString error;
        QVERIFY2(scene::ReadScene(files.Save(scene), &back, &error), qPrintable(error));
        QCOMPARE(scene::SceneToJson(back), scene::SceneToJson(scene));
        QCOMPARE(back.alphaBlend, false);
        QCOMPARE(back.pages.at(2).areas.at(1).nodes.size(), 1);
        QCOMPARE(back.Nodes().first()->attributes, node.attributes);
    }

    void findsMotions()
    {
        for (const scene::Motion& effect : scene::Effects()) {
            QCOMPARE(scene::FindEffect(QString::number(effect.number)), &effect);
            QCOMPARE(scene::FindEffect(QString(effect.name).toUpper()), &effect);
        }
        for (const char* word : {"30", "-1", ""})
            QVERIFY2(!scene::FindEffect(word), word);
        QCOMPARE(scene::FindScroll("Up")->number, 2);
        QCOMPARE(scene::FindScroll("continueeffectdown")->number, 3);
        QVERIFY(!scene::FindScroll("sideways"));
    }

private:
    TestScenes files;
};

QTEST_GUILESS_MAIN(TestScene)

#include "tst_scene.moc"
