/**
 * @file
 * Loads the plugin as an engine would: from its file, through Qt's plugin loader.
 */
#ifndef ANIMTEXT_PLUGIN_H
#define ANIMTEXT_PLUGIN_H

#include <QString>

namespace Lw {
class INodePlugin;
}

namespace AnimText {

/**
 * Where the plugin lies: @p given when it is not empty, else what the environment variable
 * ANIMATIONTEXT_PLUGIN names, else where it was installed or built together with the program.
 */
QString PluginPath(const QString& given = QString());

/**
 * The plugin object of the library at @p path. It belongs to the library, which stays loaded until
 * the process ends. On failure null, and @p error is one line that says what to do.
 *
 * Where no ANIMATIONTEXT_PICTURES names the folder with the pictures that devices have, it becomes
 * the folder that was installed or built together with the program.
 */
Lw::INodePlugin* LoadPlugin(const QString& path, QString* error);

} // namespace AnimText

#endif
