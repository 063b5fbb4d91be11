/**
 * @file
 * The options and first steps that every command which plays a scene shares.
 */
#ifndef ANIMTEXT_OPENING_H
#define ANIMTEXT_OPENING_H

#include "animtext/commandline.h"
#include "player/player.h"
#include "scene/scene.h"

#include <memory>

namespace AnimText {

/** --plugin, --seed and --allow-missing-files. */
void AddPlayOptions(CommandLine* line);

/** Reads a scene as the options say. On failure tells the error and answers the exit status. */
Status OpenScene(const CommandLine& line, const QString& path, Scene* scene);

/** What a command plays with. */
struct Playing
{
    Lw::INodePlugin* plugin = nullptr;
    VirtualDispatcher* dispatcher = nullptr;
    uint seed = standardSeed;

    /** A player with @p scene loaded; null, and the error told, when that fails. */
    std::unique_ptr<Player> Load(const Scene& scene) const;
};

/** Loads the plugin. On failure tells the error and answers the exit status. */
Status OpenPlugin(CommandLine* line, Playing* playing);

/** Both of these, for the scene that the command's first word names. */
Status OpenSceneAndPlugin(CommandLine* line, Scene* scene, Playing* playing);

} // namespace AnimText

#endif
