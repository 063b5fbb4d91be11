/**
 * @file
 * Loads the plugin as an engine would: from its file, through Qt's plugin loader.
 */
#pragma once

#include <QString>

namespace Lw {
class INodePlugin;
}

namespace AnimText::player {

/**
 * The path of the plugin: @p given if it is not empty, otherwise the environment variable
 * ANIMATIONTEXT_PLUGIN, otherwise the library that was installed or built together with the
 * program.
 */
QString PluginPath(const QString& given = QString());

/**
 * The plugin object of the library at @p path. It belongs to the library, which stays loaded until
 * the process ends. Throws Failure that says what to do.
 *
 * Sets ANIMATIONTEXT_PICTURES, unless it is set, to the folder of pictures that was installed or
 * built together with the program.
 */
Lw::INodePlugin* LoadPlugin(const QString& path);

} // namespace AnimText::player
