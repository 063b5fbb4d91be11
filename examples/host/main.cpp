// A host in one page: loads the plugin, fills a node, plays it and looks at the display.
//
//   host SCENE.json PICTURE.png [SECONDS]
//
// This is all that the plugin asks of an engine. Yours has the same classes with its own insides;
// on the sign the display is the device's, and nobody composes a picture.
#include <display.h>       // the device: what a desk has in place of a sign
#include <hneonnodebase.h> // the host: nodes, what they hold, and who plays them
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

// Whatever your engine keeps its programs in, this is what a node must be told: its rectangle, how
// long its pages stand, and by key its attributes, its lists (a row a character or page) and its
// two data files.
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

    // The plugin opens these itself, so they are full paths, and they stay while the node plays.
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
    // The plugin paints into memory and shows no window: a sign's "-platform offscreen" will do.
    QGuiApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 3)
        return Fail("expected SCENE.json PICTURE.png [SECONDS]");

    QFile file(words[1]);
    if (!file.open(QIODevice::ReadOnly))
        return Fail(words[1] + ": " + file.errorString());
    const QJsonObject scene = QJsonDocument::fromJson(file.readAll()).object();

    // 1. The plugin. The loader keeps the object; it is never deleted.
    QPluginLoader loader(ANIMATIONTEXT_PLUGIN);
    auto* plugin = qobject_cast<Lw::INodePlugin*>(loader.instance());
    if (!plugin)
        return Fail(loader.errorString());

    // 2. The nodes, in a tree of program, page, area, node, since the plugin asks for a node's
    // place
    //    in it. A parent owns its children, so the program's end is the end of all.
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
    // 3. The display, and the clock by which it scrolls. Renderers ask once, when they are made,
    //    whether its layers blend.
    QElapsedTimer clock;
    Torv::SetClock(Elapsed, &clock);
    Torv::Display display(
        QSize(scene["display"]["width"].toInt(), scene["display"]["height"].toInt()));
    Lw::HPluginManager::instance()->SetAlphaBlend(scene["alphaBlend"].toBool(true));

    // 4. A renderer for each node, ours to delete, and before its node. Start() paints the first
    //    frame; from then on the renderer's own timer paints one every 66 ms, in this thread's
    //    event loop and in no other thread.
    std::vector<std::unique_ptr<Lw::IContentRender>> renderers;
    int duration = 0;
    clock.start();
    for (Lw::HNeonNodeBase* node : nodes) {
        renderers.emplace_back(plugin->CreateAreaRender(node));
        renderers.back()->Start(display.Handle());
        duration = std::max(duration, node->Duration());
    }

    // 5. An engine shows a node for the Duration() that it names and goes on, whether it is done
    //    (renderState() is 0) or not. Here all play at once, as long as the longest or as told.
    if (words.size() > 3)
        duration = int(1000 * words[3].toDouble());
    QTimer::singleShot(duration, Qt::PreciseTimer, &application, &QCoreApplication::quit);
    application.exec();

    // 6. What is on the display now, and the end of the play: the device's memory is given back.
    const QImage picture = display.Compose(clock.elapsed());
    for (const auto& renderer : renderers)
        renderer->Remove();
    return picture.save(words[2]) ? 0 : Fail(words[2] + " cannot be written");
}
