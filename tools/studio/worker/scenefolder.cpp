#include "studio/worker/scenefolder.h"

#include <QFile>
#include <QMutexLocker>

namespace AnimText::studio::worker {
namespace {

bool Write(const QString& path, const QByteArray& content, QString* error)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush())
        return true;
    *error =
        SceneFolder::tr("Cannot write the temporary file %1: %2.").arg(path, file.errorString());
    return false;
}

} // namespace

scene::Scene SceneFolder::Put(const model::Sign& sign, int page, QString* error)
{
    const QMutexLocker locker(&mutex);
    if (!folder.isValid()) { // otherwise files would go to the current folder
        *error = tr("Cannot create a temporary folder in %1: %2. Set TMPDIR to a folder that you "
                    "may write to, and restart the studio.")
                     .arg(place, folder.errorString());
        return {};
    }
    // Workers read a file when they load its scene, so it can go one generation later.
    for (auto it = written.begin(); it != written.end();) {
        if (it->layout.expired()) {
            for (const QString& file : it->files)
                QFile::remove(file);
            it = written.erase(it);
        } else {
            ++it;
        }
    }
    for (const model::SignText& text : sign.texts) {
        if (!text.layout || written.contains(text.layout.get()))
            continue;
        Written& own = written[text.layout.get()];
        own.layout = text.layout;
        for (auto data = text.layout->data.begin(); data != text.layout->data.end(); ++data) {
            own.files[data.key()] = folder.filePath(QString::number(++next));
            if (!Write(own.files.value(data.key()), data.value(), error)) {
                own.layout.reset(); // so that they are removed, and written again
                return {};
            }
        }
    }
    const auto place = [this](const model::Layout& layout, const QString& key) {
        return written.value(&layout).files.value(key);
    };
    return model::SceneOf(sign, folder.filePath("scene.json"), place, page);
}

} // namespace AnimText::studio::worker
