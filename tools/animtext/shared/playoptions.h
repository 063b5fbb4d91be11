/**
 * @file
 * Options and steps shared by the commands that play scenes.
 */
#pragma once

#include "cli/commandline.h"
#include "player/player.h"
#include "scene/scene.h"

#include <memory>

namespace AnimText::animtext::shared {

/** Appends --plugin, --seed and --allow-missing-files to @p own. */
QVector<cli::Option> WithPlayOptions(QVector<cli::Option> own);

/** Also appends --force, for the two functions below. */
QVector<cli::Option> WithShowOptions(QVector<cli::Option> own);

/**
 * Reads a scene. If its outlines cannot be read, prints why and throws Failure, unless --force or
 * --allow-missing-files is set.
 */
scene::Scene OpenReadableScene(const cli::CommandLine& line, const QString& path);

/** The same for all errors that leave nothing to show. Prints other errors, too. */
scene::Scene OpenPlayableScene(const cli::CommandLine& line, const QString& path);

/** The plugin that the options name; throws Failure if it cannot be loaded. */
Lw::INodePlugin* PluginOf(const cli::CommandLine& line);

/** A player with that plugin and @p scene loaded; throws Failure if it cannot be played. */
std::unique_ptr<player::Player> PlayerOf(const cli::CommandLine& line, const scene::Scene& scene);

/** The seed for the plays. */
inline uint SeedOf(const cli::CommandLine& line)
{
    return uint(line.Get<int>("seed"));
}

} // namespace AnimText::animtext::shared
