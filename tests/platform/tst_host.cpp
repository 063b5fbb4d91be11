// The host's attribute store, node tree and small services.

#include "happconfig.h"
#include "hneonnodebase.h"
#include "hpluginmanager.h"
#include "icontentrender.h"
#include "inodeplugin.h"

#include <QtTest>

#include <climits>

using namespace Lw;

namespace {

typedef QList<QHash<QString, QString>> Rows;

Rows OneRow(const QString& key, const QString& value)
{
    QHash<QString, QString> row;
    row.insert(key, value);
    return Rows() << row;
}

class TimedNode : public HNode
{
public:
    explicit TimedNode(int milliseconds)
        : milliseconds(milliseconds)
    {
    }
    int Duration() override { return milliseconds; }

private:
    int milliseconds;
};

} // namespace

class tst_host : public QObject
{
    Q_OBJECT

private slots:
    void absentKeys()
    {
        const HNeonNodeBase node;
        QCOMPARE(node.GetAttribute("Text"), QString());
        QCOMPARE(node.GetAttributeToInt("PlayTimes"), 0);
        QVERIFY(!node.GetList("TextWidth"));
        QCOMPARE(node.GetFirstFile("PathData"), QString());
        QCOMPARE(node.GetHoldTime(), 0);
        QCOMPARE(node.GetNeonEffect(), 0);
    }

    void numbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number");
        QTest::newRow("decimal") << "42" << 42;
        QTest::newRow("negative") << "-7" << -7;
        QTest::newRow("largest") << "2147483647" << INT_MAX;
        QTest::newRow("too large") << "2147483648" << 0;
        QTest::newRow("not decimal") << "0x10" << 0;
        QTest::newRow("fraction") << "1.5" << 0;
        QTest::newRow("empty") << "" << 0;
    }

    void numbers()
    {
        QFETCH(QString, text);
        HData data;
        data.SetAttribute("key", text);
        QTEST(data.GetAttributeToInt("key"), "number");
    }

    void storeReplacesAndRemoves()
    {
        HData data;
        data.SetAttribute("key", 5);
        QCOMPARE(data.GetAttribute("key"), QString("5"));
        data.SetFiles("key", {"/a", "/b"});
        QCOMPARE(data.GetFirstFile("key"), QString("/a"));
        data.SetFiles("key", {});
        QCOMPARE(data.GetFirstFile("key"), QString());

        data.SetList("key", OneRow("text_width", "17"));
        data.SetList("key", data.GetList("key")->items() + OneRow("text_width", "18"));
        QCOMPARE(data.GetList("key")->items().size(), 2);
        QCOMPARE(data.GetList("key")->items().at(0).value("text_width"), QString("17"));
        data.RemoveKey("key");
        QCOMPARE(data.GetAttribute("key"), QString());
        QVERIFY(!data.GetList("key"));
    }

    void nodeTakesOverData()
    {
        HNode from;
        from.SetAttribute("Text", "Hello");
        from.SetList("TextWidth", OneRow("text_width", "17"));
        HNode to;
        to.SetAttribute("Stroke", 1);
        to.SetList("TextHeight", OneRow("text_height", "9"));
        to.ReloadAtrrbute(&from);
        to.ReloadAtrrbute(&to);
        to.ReloadAtrrbute(nullptr);
        from.RemoveKey("TextWidth");
        QCOMPARE(to.GetAttribute("Text"), QString("Hello"));
        QCOMPARE(to.GetList("TextWidth")->items(), OneRow("text_width", "17"));
        QCOMPARE(to.GetAttributeToInt("Stroke"), 0);
        QVERIFY(!to.GetList("TextHeight"));
    }

    void tree()
    {
        HNode program;
        auto* const page = new HNode(&program);
        auto* const area = new HNode;
        auto* const node = new HNeonNodeBase;
        page->AddChild(area);
        area->AddChild(node);
        new QObject(area); // no node, so no child
        QCOMPARE(node->ParentNode(), area);
        QCOMPARE(area->ChildNodes(), QList<HNode*>() << node);
        QVERIFY(!program.ParentNode());

        node->AddChild(&program); // would make a ring
        area->AddChild(area);
        area->AddChild(nullptr);
        QVERIFY(!program.ParentNode());
        QCOMPARE(area->ChildNodes(), QList<HNode*>() << node);

        auto* const second = new HNode;
        program.AddChild(second);
        QCOMPARE(program.ChildNodes(), QList<HNode*>() << page << second);
        second->AddChild(node); // moves
        QVERIFY(area->ChildNodes().isEmpty());
        delete page; // takes the area with it
        QCOMPARE(program.ChildNodes(), QList<HNode*>() << second);
        delete node;
        QVERIFY(second->ChildNodes().isEmpty());
    }

    void deleteIsLeftToTheEventLoop()
    {
        HNode parent;
        QPointer<HNode> child(new HNode(&parent));
        child->Delete();
        QVERIFY(child);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!child);
        QVERIFY(parent.ChildNodes().isEmpty());
    }

    void durationAddsUp()
    {
        HNode area;
        QCOMPARE(area.Duration(), 0);
        area.AddChild(new TimedNode(1000));
        area.AddChild(new TimedNode(234));
        QCOMPARE(area.Duration(), 1234);
        area.AddChild(new TimedNode(INT_MAX));
        QCOMPARE(area.Duration(), INT_MAX);
    }

    void classChain()
    {
        HNeonNodeBase node;
        node.ON_SizeChange(QSize(7, 8));
        node.SetPos(QPoint(1, 2));
        QCOMPARE(node.Size(), QSize(7, 8));
        QCOMPARE(node.Pos(), QPoint(1, 2));
        QCOMPARE(node.Level(), 4);
        // It has no meta-object of its own; what derives from it names its base.
        QCOMPARE(node.metaObject()->className(), "Lw::HEffectNode");
        QCOMPARE(node.metaObject()->superClass()->className(), "Lw::HContentNode");
    }

    void colours()
    {
        QCOMPARE(HAppConfig::IntToColor(0x123456), QColor(0x12, 0x34, 0x56));
        QCOMPARE(HAppConfig::IntToColor(-1), QColor(255, 255, 255));
        QCOMPARE(HAppConfig::IntToColor(0x010000).alpha(), 255);
    }

    void alphaBlend()
    {
        QVERIFY(HPluginManager::instance()->SuportAlphaBlend(nullptr));
        HPluginManager::instance()->SetAlphaBlend(false);
        QVERIFY(!HPluginManager::instance()->SuportAlphaBlend(nullptr));
        HPluginManager::instance()->SetAlphaBlend(true);
    }
};

QTEST_GUILESS_MAIN(tst_host)
#include "tst_host.moc"
