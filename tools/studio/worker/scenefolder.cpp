#include "studio/worker/scenefolder.h"

#include <QFile>
#include <QMutexLocker>

namespace AnimText {
namespace {

void Write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
}

} // namespace

Scene SceneFolder::Put(const Sign& sign, int page)
{
    const QMutexLocker locker(&mutex);
    if (!folder.isValid()) // its files would be files of the current folder
        return SceneOf(
            sign, QString(), [](const Layout&, bool) { return QString(); }, page);
    // Workers read a file when they load its scene; one generation later nobody needs it.
    for (auto it = written.begin(); it != written.end();) {
        if (it->layout.expired()) {
            QFile::remove(it->name + QStringLiteral(".path"));
            QFile::remove(it->name + QStringLiteral(".descent"));
            it = written.erase(it);
        } else {
            ++it;
        }
    }
    for (const SignText& text : sign.texts) {
        if (!text.layout || written.contains(text.layout.get()))
            continue;
        const QString name = folder.filePath(QString::number(++next));
        Write(name + QStringLiteral(".path"), text.layout->outlines);
        Write(name + QStringLiteral(".descent"), text.layout->descents);
        written.insert(text.layout.get(), {text.layout, name});
    }
    const auto place = [this](const Layout& layout, bool outlines) {
        const QString name = written.value(&layout).name;
        return name + (outlines ? QStringLiteral(".path") : QStringLiteral(".descent"));
    };
    return SceneOf(sign, folder.filePath(QStringLiteral("scene.json")), place, page);
}

} // namespace AnimText
