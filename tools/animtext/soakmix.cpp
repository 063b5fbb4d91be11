#include "animtext/soakmix.h"

#include "author/author.h"
#include "files/wholefile.h"
#include "scene/catalogue.h"

namespace AnimText {

namespace {

const QSize area(96, 24); // pixels

/** Backgrounds in turn. */
void SetBackground(SceneNode* node, int background)
{
    node->attributes[QStringLiteral("CheckNeonBg")] = background & 1;
    node->attributes[QStringLiteral("CheckDazzle")] = background >> 1 & 1;
}

} // namespace

QVector<Scene> SoakMix(const QDir& folder, const std::function<bool()>& goOn, QString* error)
{
    // A text of one page, one of several, and one with characters that have no outline.
    const char* const texts[] = {"Hello", "Platform 7 departs at noon", "a b c"};
    const QList<Motion> motions = Effects() + Scrolls();
    QVector<Scene> scenes;
    for (int i = 0; i < 4 * motions.size(); ++i) {
        AuthorOptions options;
        options.text = QString::fromLatin1(texts[i % 3]);
        options.font = QFont(QStringLiteral("DejaVu Sans"));
        options.area = area;
        options.motion = {i % motions.size() < Effects().size() ? Mode::Entrance : Mode::Scroll,
                          motions.at(i % motions.size()).number};
        options.speed = i % 10;
        options.hold = i % 4 * 10;
        options.plays = 1 + i % 3;
        options.hollow = i % 5 == 0;
        AuthoredNode authored;
        if (!goOn() || !AuthorNode(options, &authored, error))
            return QVector<Scene>();

        SceneNode& node = authored.node;
        SetBackground(&node, i / motions.size());
        node.neonEffect = i % 29;
        node.files[QStringLiteral("PathData")] = QStringLiteral("%1.path").arg(i);
        node.files[QStringLiteral("DescentVector")] = QStringLiteral("%1.descent").arg(i);
        if (!WriteWhole(folder.filePath(node.files[QStringLiteral("PathData")]), authored.pathFile,
                        error) ||
            !WriteWhole(folder.filePath(node.files[QStringLiteral("DescentVector")]),
                        authored.descentFile, error))
            return QVector<Scene>();
        Scene scene;
        scene.path = folder.filePath(QStringLiteral("soak.json"));
        scene.display = area;
        scene.alphaBlend = i % 2 == 0;
        scene.pages = {ScenePage{{SceneArea{{node}}}}};
        scenes.append(scene);
    }
    return scenes;
}

} // namespace AnimText
