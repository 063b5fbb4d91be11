// The smallest host: loads the plugin, fills nodes, plays them and saves what the display shows.
//
//   host SCENE.json PICTURE.png [SECONDS]
//
// Start here if you put the plugin into your own host, which has the same classes. On a sign, the
// display belongs to the device, and nobody saves pictures.
#include <display.h>       // the stand-in for the device
#include <hneonnodebase.h> // the host's classes: nodes, renderers, plugins
#include <hpluginmanager.h>
#include <icontentrender.h>
#include <inodeplugin.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPluginLoader>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

int Fail(const QString& message)
{
    qCritical("host: %s", qPrintable(message));
    return 1;
}

// What a node needs: its area, how long its pages are held, and by key its attributes, its lists
// (one row for each character) and its files.
void Fill(Lw::HNeonNodeBase* node, const QJsonObject& from, const QDir& folder)
{
    const QJsonArray pos = from["pos"].toArray(), size = from["size"].toArray();
    node->SetPos(QPoint(pos[0].toInt(), pos[1].toInt()));   // pixels of the display
    node->SetSize(QSize(size[0].toInt(), size[1].toInt())); // pixels
    node->SetHoldTime(from["hold"].toInt());                // units of 100 ms
    node->SetNeonEffect(from["neonEffect"].toInt());

    const QJsonObject attributes = from["attributes"].toObject();
    for (const QString& key : attributes.keys())
        attributes[key].isString() ? node->SetAttribute(key, attributes[key].toString())
                                   : node->SetAttribute(key, attributes[key].toInt());

    const QJsonObject lists = from["lists"].toObject();
    for (const QString& key : lists.keys()) {
        QList<QHash<QString, QString>> rows;
        for (const QJsonValue row : lists[key].toArray()) {
            const QJsonObject fields = row.toObject();
            rows.append(QHash<QString, QString>());
            for (const QString& name : fields.keys())
                rows.last().insert(name, fields[name].toString());
        }
        node->SetList(key, rows);
    }

    // Full paths, because the plugin opens the files itself, in Duration() and Start().
    const QJsonObject files = from["files"].toObject();
    for (const QString& key : files.keys())
        node->SetFiles(key, {folder.absoluteFilePath(files[key].toString())});
}

qint64 Elapsed(void* clock)
{
    return static_cast<QElapsedTimer*>(clock)->elapsed();
}

} // namespace

int main(int argc, char** argv)
{
    // The plugin shows no window. Without a display, set QT_QPA_PLATFORM=offscreen.
    QGuiApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 3)
        return Fail("expected SCENE.json PICTURE.png [SECONDS]");

    QFile file(words[1]);
    if (!file.open(QIODevice::ReadOnly))
        return Fail(words[1] + ": " + file.errorString());
    const QJsonObject scene = QJsonDocument::fromJson(file.readAll()).object();

    // 1. The plugin. The loader keeps the object, so it is not deleted here.
    QPluginLoader loader(ANIMATIONTEXT_PLUGIN);
    auto* plugin = qobject_cast<Lw::INodePlugin*>(loader.instance());
    if (!plugin)
        return Fail(loader.errorString());

    // 2. The nodes, in a tree of program, page, area, node. How long the device scrolls depends on
    //    a node's place in it. A parent owns its children.
    Lw::HNode program;
    std::vector<Lw::HNeonNodeBase*> nodes;
    for (const QJsonValue pageValue : scene["pages"].toArray()) {
        auto* page = new Lw::HNode;
        program.AddChild(page);
        for (const QJsonValue areaValue : pageValue["areas"].toArray()) {
            auto* area = new Lw::HNode;
            page->AddChild(area);
            for (const QJsonValue value : areaValue["nodes"].toArray()) {
                auto* node = static_cast<Lw::HNeonNodeBase*>(plugin->Create());
                area->AddChild(node);
                Fill(node, value.toObject(), QFileInfo(file).absoluteDir());
                nodes.push_back(node);
            }
        }
    }
    if (nodes.empty())
        return Fail(words[1] + " has no node");
    // 3. The display, and the clock by which it scrolls. A renderer asks once, when it is made,
    //    whether layers are blended by their alpha.
    QElapsedTimer clock;
    Torv::SetClock(Elapsed, &clock);
    Torv::Display display(
        QSize(scene["display"]["width"].toInt(), scene["display"]["height"].toInt()));
    Lw::HPluginManager::instance()->SetAlphaBlend(scene["alphaBlend"].toBool(true));

    // 4. A renderer for each node. We own it. Start() paints the first picture; then the renderer's
    //    timer paints one every 66 ms, in this thread's event loop.
    std::vector<std::unique_ptr<Lw::IContentRender>> renderers;
    int duration = 0;
    clock.start();
    for (Lw::HNeonNodeBase* node : nodes) {
        renderers.emplace_back(plugin->CreateAreaRender(node));
        renderers.back()->Start(display.Handle());
        duration = std::max(duration, node->Duration());
    }

    // 5. A host shows a node for its Duration() and goes on, whether renderState() is 0 (finished)
    //    or not. Here all nodes play at once, for the longest Duration() or for SECONDS.
    if (words.size() > 3)
        duration = int(1000 * words[3].toDouble());
    QTimer::singleShot(duration, Qt::PreciseTimer, &application, &QCoreApplication::quit);
    application.exec();

    // 6. The picture of the display, and the end: Remove() frees the device's memory.
    const QImage picture = display.Compose(clock.elapsed());
    for (const auto& renderer : renderers)
        renderer->Remove();
    return picture.save(words[2]) ? 0 : Fail(words[2] + " cannot be written");
}
