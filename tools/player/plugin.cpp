#include "player/plugin.h"

#include "files/failure.h"

#include <inodeplugin.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

namespace AnimText::player {

namespace {

/** The first existing one of @p places, relative to the program's folder; otherwise the last. */
QString BesideProgram(const QStringList& places)
{
    const QDir programs(QCoreApplication::applicationDirPath());
    QString path;
    for (const QString& place : places) {
        path = QDir::cleanPath(programs.filePath(place));
        if (QFileInfo::exists(path))
            break;
    }
    return path;
}

/** Shows the plugin where the device's pictures are on a desktop. */
void OfferPictures()
{
    const QString shipped =
        BesideProgram({INSTALLED_DATA "/pictures", "../share/animationtext/pictures"});
    const bool onDevice = QFileInfo::exists("/root/Box/image");
    if (!onDevice && !qEnvironmentVariableIsSet("ANIMATIONTEXT_PICTURES") &&
        QFileInfo::exists(shipped))
        qputenv("ANIMATIONTEXT_PICTURES", QFile::encodeName(shipped));
}

const char outputFolder[] = "outputpath/AnimationText";

void RemoveOutputFolder()
{
    QDir(QCoreApplication::applicationDirPath()).rmpath(QLatin1String(outputFolder));
}

/**
 * Nodes make a folder for their host's output beside the program. On a desktop nothing uses it, so
 * a new one is removed again.
 */
void LeaveNoOutputFolder()
{
    if (!QDir(QCoreApplication::applicationDirPath()).exists(QLatin1String(outputFolder)))
        qAddPostRoutine(RemoveOutputFolder);
}

} // namespace

QString PluginPath(const QString& given)
{
    if (!given.isEmpty())
        return given;
    const QString named = qEnvironmentVariable("ANIMATIONTEXT_PLUGIN");
    if (!named.isEmpty())
        return named;
    // Installed, or where both were built.
    return BesideProgram(
        {INSTALLED_LIBRARIES "/libanimationtext.so", "../lib/libanimationtext.so"});
}

Lw::INodePlugin* LoadPlugin(const QString& path)
{
    const QFileInfo file(path);
    files::FailUnless(
        file.isFile(),
        QStringLiteral("there is no plugin at %1: build the target animationtext, or name "
                       "the library with --plugin or ANIMATIONTEXT_PLUGIN")
            .arg(path));
    OfferPictures();
    QPluginLoader loader(file.absoluteFilePath());
    QObject* object = loader.instance();
    // Linkers print missing symbols on separate lines.
    files::FailUnless(
        object,
        QStringLiteral("%1 cannot be loaded: %2").arg(path, loader.errorString().simplified()));
    Lw::INodePlugin* plugin = qobject_cast<Lw::INodePlugin*>(object);
    files::FailUnless(plugin, QStringLiteral("%1 is a plugin, but it has no node type").arg(path));
    LeaveNoOutputFolder();
    return plugin;
}

} // namespace AnimText::player
