#include "scene/scene.h"

#include "files/wholefile.h"

#include <QDir>
#include <QFileInfo>

namespace AnimText {

QList<const SceneNode*> Scene::Nodes() const
{
    QList<const SceneNode*> nodes;
    for (const ScenePage& page : pages) {
        for (const SceneArea& area : page.areas) {
            for (const SceneNode& node : area.nodes)
                nodes.append(&node);
        }
    }
    return nodes;
}

QString Scene::FullName(const QString& file) const
{
    if (file.isEmpty())
        return QString();
    const QDir folder = QFileInfo(RealPath(path)).absoluteDir();
    return QDir::cleanPath(folder.absoluteFilePath(file));
}

} // namespace AnimText
