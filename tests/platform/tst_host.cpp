// The host's attribute store and node tree.

#include "hneonnodebase.h"

#include <QtTest>

using namespace Lw;

static const QList<QHash<QString, QString>> rows = {{{"text_width", "17"}}};

class TestHost : public QObject
{
    Q_OBJECT

private slots:
    void storeReplacesAndRemoves()
    {
        HData data;
        data.SetAttribute("key", 5);
        data.SetList("key", rows);
        data.SetList("key", data.GetList("key")->items() + rows);
        QCOMPARE(data.GetList("key")->items(), rows + rows);
        data.RemoveKey("key");
        QCOMPARE(data.GetAttribute("key"), QString());
        QVERIFY(!data.GetList("key"));
    }

    void nodeTakesOverData()
    {
        HNode from;
        from.SetAttribute("Text", "Hello");
        from.SetList("TextWidth", rows);
        from.SetFiles("PathData", {"/outlines"});
        HNode to;
        to.SetAttribute("Stroke", 1);
        to.SetList("TextHeight", rows);
        to.ReloadAtrrbute(&from);
        to.ReloadAtrrbute(&to);
        from.RemoveKey("TextWidth");
        QCOMPARE(to.GetAttribute("Text"), QString("Hello"));
        QCOMPARE(to.GetList("TextWidth")->items(), rows);
        QCOMPARE(to.GetFirstFile("PathData"), QString("/outlines"));
        QCOMPARE(to.GetAttributeToInt("Stroke"), 0);
        QVERIFY(!to.GetList("TextHeight"));
    }

    void childrenFollowTheirParents()
    {
        HNode program;
        auto* const page = new HNode(&program);
        auto* const area = new HNode;
        auto* const node = new HNeonNodeBase;
        page->AddChild(area);
        area->AddChild(node);
        new QObject(area);        // no node, so no child
        node->AddChild(&program); // would make a ring
        area->AddChild(area);
        QVERIFY(!program.ParentNode());
        QCOMPARE(node->ParentNode(), area);
        QCOMPARE(area->ChildNodes(), QList<HNode*>() << node);

        auto* const second = new HNode;
        program.AddChild(second);
        second->AddChild(node); // moves
        QVERIFY(area->ChildNodes().isEmpty());
        delete page; // takes the area with it
        QCOMPARE(program.ChildNodes(), QList<HNode*>() << second);
        node->Delete();
        QCOMPARE(second->ChildNodes(), QList<HNode*>() << node); // until the event loop runs
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(second->ChildNodes().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestHost)
#include "tst_host.moc"
