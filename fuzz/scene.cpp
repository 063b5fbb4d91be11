// A scene file. One that can be read must come back the same when it is written and read again.
#include "scene/scene.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

namespace {

/** A file in memory, for the reader takes a path. */
class MemoryFile
{
public:
    MemoryFile()
        : descriptor(memfd_create("scene", MFD_CLOEXEC))
        , path(QStringLiteral("/proc/self/fd/%1").arg(descriptor))
    {
        if (descriptor < 0)
            std::abort();
    }

    const QString& Holding(const void* data, size_t size)
    {
        if (ftruncate(descriptor, 0) != 0 ||
            pwrite(descriptor, data, size, 0) != static_cast<ssize_t>(size))
            std::abort();
        return path;
    }

private:
    int descriptor;
    QString path;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static MemoryFile* const file = new MemoryFile;
    AnimText::scene::Scene scene;
    QString error;
    const auto read = [&](const void* bytes, size_t count) {
        return AnimText::scene::ReadScene(file->Holding(bytes, count), &scene, &error,
                                          AnimText::scene::MissingFiles::AreAccepted);
    };
    if (!read(data, size)) {
        if (error.isEmpty() || error.contains(QLatin1Char('\n')))
            std::abort(); // an error is one line
        return 0;
    }
    const QByteArray written = AnimText::scene::SceneToJson(scene);
    if (!read(written.constData(), static_cast<size_t>(written.size())) ||
        AnimText::scene::SceneToJson(scene) != written)
        std::abort();
    return 0;
}
