#include "scene/scene.h"

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

QString RealPath(const QString& path)
{
    constexpr int mostLinks = 40; // as the kernel follows
    QFileInfo file(path);
    for (int links = 0; file.isSymLink() && links < mostLinks; ++links)
        file.setFile(file.symLinkTarget());
    return file.filePath();
}

QString Scene::FullName(const QString& file) const
{
    if (file.isEmpty())
        return QString();
    const QDir folder = QFileInfo(RealPath(path)).absoluteDir();
    return QDir::cleanPath(folder.absoluteFilePath(file));
}

} // namespace AnimText
