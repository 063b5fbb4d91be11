#include "testsign.h"

#include "player/nodetree.h"
#include "player/player.h"
#include "player/plugin.h"

#include <QTimer>

#include <cstdio>

namespace {

QStringList complaints;

void TakeMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtFatalMsg || type == QtCriticalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
    static const QStringList readers{QStringLiteral("libpng"), QStringLiteral("QGif"),
                                     QStringLiteral("QImageReader"),
                                     QStringLiteral("qt.gui.image")};
    if (type != QtWarningMsg)
        return;
    for (const QString& reader : readers) {
        if (text.startsWith(reader))
            return;
    }
    complaints.append(text);
}

} // namespace

void CountingDispatcher::registerTimer(int id, Interval interval, Qt::TimerType type,
                                       QObject* object)
{
    if (qobject_cast<QTimer*>(object))
        live.insert(id);
    VirtualDispatcher::registerTimer(id, interval, type, object);
}

bool CountingDispatcher::unregisterTimer(int id)
{
    live.remove(id);
    return VirtualDispatcher::unregisterTimer(id);
}

bool CountingDispatcher::unregisterTimers(QObject* object)
{
    for (const TimerInfo& timer : registeredTimers(object))
        live.remove(timer.timerId);
    return VirtualDispatcher::unregisterTimers(object);
}

CountingDispatcher* TestSign::Dispatcher()
{
    return static_cast<CountingDispatcher*>(QAbstractEventDispatcher::instance());
}

Lw::INodePlugin* TestSign::Plugin()
{
    static Lw::INodePlugin* const plugin =
        AnimText::player::LoadPlugin(AnimText::player::PluginPath());
    return plugin;
}

void TestSign::Tick(int count)
{
    Dispatcher()->AdvanceTo(Dispatcher()->Now() + qint64(count) * AnimText::player::tickLength);
}

std::unique_ptr<Lw::HNeonNodeBase> TestSign::NewNode(const AnimText::scene::SceneNode& from)
{
    AnimText::scene::Scene scene;
    scene.pages = {{{{{from}}}}};
    const AnimText::player::NodeTree tree = AnimText::player::BuildNodeTree(scene, Plugin());
    Lw::HNeonNodeBase* const node = tree.nodes.first();
    node->setParent(nullptr);
    return std::unique_ptr<Lw::HNeonNodeBase>(node);
}

std::unique_ptr<Lw::IContentRender> TestSign::NewRender(Lw::HNode* node)
{
    return std::unique_ptr<Lw::IContentRender>(Plugin()->CreateAreaRender(node));
}

void TestSign::KeepComplaints()
{
    qInstallMessageHandler(TakeMessage);
}

QStringList TestSign::TakeComplaints()
{
    QStringList taken;
    taken.swap(complaints);
    return taken;
}

uint Shown(const Torv::Display& display)
{
    const QImage picture = display.Compose(TestSign::Dispatcher()->Now());
    return qHashBits(picture.constBits(), size_t(picture.sizeInBytes()));
}

bool IsSanitized()
{
#if defined(__SANITIZE_ADDRESS__)
    return true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
    return true;
#endif
#endif
    return false;
}
