#include "testscene.h"

#include "catalogue.h"
#include "suggest.h"

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
    "attributes": {"Text": "Hello", "AnimationEffect": 5},
    "lists": {"TextWidth": [{"text_width": "17"}, {"text_width": "9"}]},
    "files": {"PathData": "paths"}
  }]}]}]
})";

} // namespace

class TestScene : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatIsThere();
    void tellsTheFault_data();
    void tellsTheFault();
    void tellsOddFiles();
    void acceptsMissingFilesWhenTold();
    void comesBackAsItWasWritten();
    void findsMotionsByNumberAndName();
    void suggestsTheNearestWord_data();
    void suggestsTheNearestWord();

private:
    TestScenes files;
};

void TestScene::readsWhatIsThere()
{
    files.Write(QStringLiteral("paths"), "x");
    files.Write(QStringLiteral("good.json"), good);
    Scene scene;
    QString error;
    QVERIFY2(ReadScene(files.Path(QStringLiteral("good.json")), &scene, &error), qPrintable(error));
    QCOMPARE(scene.display, QSize(512, 64));
    QCOMPARE(scene.Nodes().size(), 1);
    const SceneNode& node = *scene.Nodes().first();
    QCOMPARE(node.pos, QPoint(0, 8));
    QCOMPARE(node.size, QSize(512, 48));
    QCOMPARE(node.hold, 20);
    QCOMPARE(node.neonEffect, 3);
    QCOMPARE(node.attributes.value(QStringLiteral("Text")).toString(), QStringLiteral("Hello"));
    QCOMPARE(node.attributes.value(QStringLiteral("AnimationEffect")).toInt(), 5);
    QCOMPARE(node.lists.value(QStringLiteral("TextWidth")).at(1).value("text_width"),
             QStringLiteral("9"));
    QCOMPARE(ResolveSceneFile(files.Path(QStringLiteral("good.json")),
                              node.files.value(QStringLiteral("PathData"))),
             files.Path(QStringLiteral("paths")));
}

/** Each row changes one thing of a good scene. */
void TestScene::tellsTheFault_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* from, const char* to, const char* place,
                        const char* expected) {
        QTest::newRow(name) << QByteArray(from) << QByteArray(to) << QString::fromUtf8(place)
                            << QString::fromUtf8(expected);
    };
    const char node[] = ": $.pages[0].areas[0].nodes[0]";
    const auto inNode = [&](const char* name, const char* from, const char* to, const char* place,
                            const char* expected) {
        row(name, from, to, QByteArray(node).append(place).constData(), expected);
    };
    row("syntax", "\"scene\": 1,", "\"scene\": 1;", ":2:1", "no valid JSON");
    row("cut off", good, QByteArray(good).chopped(30).constData(), ":", "no valid JSON");
    row("no object", good, "[1, 2]", ": $:", "expected an object, found a list of 2");
    row("empty", good, "", ":1:1:", "no valid JSON");
    row("other version", "\"scene\": 1", "\"scene\": 2", ": $.scene:", "found 2");
    row("no version", "\"scene\": 1,", "", ": $.scene:", "found nothing");
    row("unknown key", "\"alphaBlend\"", "\"alphaBlond\"",
        ": $.alphaBlond:", "did you mean alphaBlend?");
    row("no truth value", "\"alphaBlend\": true", "\"alphaBlend\": 1",
        ": $.alphaBlend:", "expected true or false, found 1");
    row("key twice", "\"alphaBlend\": true", "\"scene\": 1", ": $.scene:", "found it twice");
    row("no display", "\"display\": {\"width\": 512, \"height\": 64},", "",
        ": $.display:", "expected an object, found nothing");
    row("display of nothing", "\"width\": 512", "\"width\": 0",
        ": $.display.width:", "a whole number from 1 to 16384, found 0");
    row("display too large", "\"width\": 512, \"height\": 64",
        "\"width\": 16384, \"height\": 16384", ": $.display:", "at most 67108864 pixels");
    row("pages no list", "\"pages\": [{", "\"pages\": {\"areas\": 1}, \"x\": [{", ": $",
        "expected");
    row("area without nodes", "{\"nodes\": [{", "{\"notes\": [{",
        ": $.pages[0].areas[0].notes:", "did you mean nodes?");
    inNode("unknown key of a node", "\"hold\"", "\"hodl\"", ".hodl:", "did you mean hold?");
    inNode("size of one number", "\"size\": [512, 48]", "\"size\": [512]",
           ".size:", "a list of two whole numbers, found a list of 1");
    inNode("negative size", "\"size\": [512, 48]", "\"size\": [512, -1]", ".size[1]:", "found -1");
    inNode("half a pixel", "\"pos\": [0, 8]", "\"pos\": [0.5, 8]", ".pos[0]:", "found 0.5");
    inNode("no size", "\"size\": [512, 48],", "", ".size:", "found nothing");
    inNode("hold as text", "\"hold\": 20", "\"hold\": \"20\"", ".hold:", "found a text");
    inNode("hold beyond 32 bits", "\"hold\": 20", "\"hold\": 3000000000",
           ".hold:", "found 3000000000");
    inNode("text as number", "\"Text\": \"Hello\"", "\"Text\": 5",
           ".attributes.Text:", "expected a text, found 5");
    inNode("number as text", "\"AnimationEffect\": 5", "\"AnimationEffect\": \"5\"",
           ".attributes.AnimationEffect:", "found a text");
    inNode("unknown attribute", "\"AnimationEffect\": 5", "\"AnimationEfect\": 5",
           ".attributes.AnimationEfect:", "did you mean AnimationEffect?");
    inNode("attribute twice", "\"AnimationEffect\": 5", "\"Text\": \"x\"",
           ".attributes.Text:", "found it twice");
    inNode("key twice, once escaped", "\"AnimationEffect\": 5", "\"\\u0054ext\": \"x\"",
           ".attributes.Text:", "found it twice");
    inNode("unknown list", "\"TextWidth\"", "\"TextWide\"",
           ".lists.TextWide:", "did you mean TextWidth?");
    inNode("row as number", "{\"text_width\": \"9\"}", "9",
           ".lists.TextWidth[1]:", "expected an object, found 9");
    inNode("field as number", "\"text_width\": \"9\"", "\"text_width\": 9",
           ".lists.TextWidth[1].text_width:", "expected a text, found 9");
    inNode("field of another list", "\"text_width\": \"9\"", "\"text_height\": \"9\"",
           ".lists.TextWidth[1].text_height:", "expected one of text_width");
    inNode("missing file", "\"PathData\": \"paths\"", "\"PathData\": \"none\"",
           ".files.PathData:", "expected a file, there is no ");
    inNode("file without a name", "\"PathData\": \"paths\"", "\"PathData\": \"\"",
           ".files.PathData:", "expected the name of a file");
    inNode("unknown file", "\"PathData\"", "\"PathDate\"",
           ".files.PathDate:", "did you mean PathData?");
}

void TestScene::tellsTheFault()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, place);
    QFETCH(QString, expected);
    files.Write(QStringLiteral("paths"), "x");
    QByteArray text = good;
    text.replace(from, to);
    QVERIFY(text != good);
    files.Write(QStringLiteral("bad.json"), text);

    const QString path = files.Path(QStringLiteral("bad.json"));
    Scene scene;
    scene.display = QSize(7, 7);
    QString error;
    QVERIFY(!ReadScene(path, &scene, &error));
    QVERIFY2(error.startsWith(path + place), qPrintable(error));
    QVERIFY2(error.contains(expected), qPrintable(error));
    QVERIFY2(!error.contains(QLatin1Char('\n')), qPrintable(error));
    QCOMPARE(scene.display, QSize(7, 7)); // left as it was
}

void TestScene::tellsOddFiles()
{
    Scene scene;
    QString error;
    QVERIFY(!ReadScene(files.Path(QStringLiteral("nowhere.json")), &scene, &error));
    QVERIFY2(error.contains(QStringLiteral("no such file")), qPrintable(error));
    QVERIFY(!ReadScene(files.Folder(), &scene, &error));
    QVERIFY2(error.contains(QStringLiteral("no regular file")), qPrintable(error));
    const QString pipe = files.Path(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(!ReadScene(pipe, &scene, &error)); // and does not wait for a writer
    QVERIFY2(error.contains(QStringLiteral("no regular file")), qPrintable(error));
}

void TestScene::acceptsMissingFilesWhenTold()
{
    QFile::remove(files.Path(QStringLiteral("paths")));
    files.Write(QStringLiteral("good.json"), good);
    Scene scene;
    QString error;
    const QString path = files.Path(QStringLiteral("good.json"));
    QVERIFY(!ReadScene(path, &scene, &error));
    QVERIFY(ReadScene(path, &scene, &error, MissingFiles::AreAccepted));
    QCOMPARE(scene.Nodes().first()->files.value(QStringLiteral("PathData")),
             QStringLiteral("paths"));
}

void TestScene::comesBackAsItWasWritten()
{
    SceneNode node = files.Node({QStringLiteral("a\"b\\c\n\tŻ𝄞"), 8, 3, -1, 2});
    node.pos = QPoint(-3, 5);
    node.neonEffect = 30;
    Scene scene = TestScenes::Of({node, files.Node({})});
    scene.alphaBlend = false;
    scene.pages.append(ScenePage());
    scene.pages.append(ScenePage{{SceneArea(), SceneArea{{files.Node({})}}}});
    const QByteArray text = SceneToJson(scene);

    Scene back;
    QString error;
    QVERIFY2(ReadScene(files.Save(scene), &back, &error), qPrintable(error));
    QCOMPARE(SceneToJson(back), text);
    QCOMPARE(back.alphaBlend, false);
    QCOMPARE(back.pages.size(), 3);
    QCOMPARE(back.pages.at(2).areas.at(1).nodes.size(), 1);
    const SceneNode& read = *back.Nodes().first();
    QCOMPARE(read.attributes, node.attributes);
    QCOMPARE(read.lists, node.lists);
    QCOMPARE(read.files, node.files);
    QCOMPARE(read.pos, node.pos);
    QCOMPARE(read.hold, node.hold);
    QCOMPARE(read.neonEffect, node.neonEffect);
}

void TestScene::findsMotionsByNumberAndName()
{
    QCOMPARE(Effects().size(), 30);
    for (int number = 0; number < Effects().size(); ++number) {
        const Motion& effect = Effects().at(number);
        QCOMPARE(effect.number, number);
        QCOMPARE(FindEffect(QString::number(number)), &effect);
        QCOMPARE(FindEffect(QString::fromLatin1(effect.name).toUpper()), &effect);
    }
    QVERIFY(!FindEffect(QStringLiteral("30")));
    QVERIFY(!FindEffect(QStringLiteral("-1")));
    QVERIFY(!FindEffect(QString()));
    QCOMPARE(FindScroll(QStringLiteral("Up"))->number, 2);
    QCOMPARE(FindScroll(QStringLiteral("continueeffectdown"))->number, 3);
    QVERIFY(!FindScroll(QStringLiteral("sideways")));
}

void TestScene::suggestsTheNearestWord_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("closest");
    QTest::newRow("dropped letter") << "rnder"
                                    << "render";
    QTest::newRow("swapped letters") << "redner"
                                     << "render";
    QTest::newRow("case") << "TRACE"
                          << "trace";
    QTest::newRow("short") << "t"
                           << "";
    QTest::newRow("too far") << "elephant"
                             << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("endless") << QString(100000, QLatin1Char('r')) << "";
}

void TestScene::suggestsTheNearestWord()
{
    QFETCH(QString, word);
    QFETCH(QString, closest);
    QCOMPARE(Closest(word, {QStringLiteral("render"), QStringLiteral("trace")}), closest);
}

QTEST_GUILESS_MAIN(TestScene)

#include "tst_scene.moc"
