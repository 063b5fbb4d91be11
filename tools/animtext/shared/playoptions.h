/**
 * @file
 * The options and first steps that every command which plays a scene shares.
 */
#ifndef ANIMTEXT_PLAYOPTIONS_H
#define ANIMTEXT_PLAYOPTIONS_H

#include "cli/commandline.h"
#include "player/player.h"
#include "scene/scene.h"

#include <memory>

namespace AnimText {

/** @p own and --plugin, --seed and --allow-missing-files. */
QVector<Option> WithPlayOptions(QVector<Option> own);

/** The same and --force, for the two functions below. */
QVector<Option> WithShowOptions(QVector<Option> own);

/**
 * Reads a scene and its outlines. Throws Failure when these cannot be read, after it has said why,
 * unless --force or --allow-missing-files says to go on.
 */
Scene OpenReadableScene(const CommandLine& line, const QString& path);

/** The same for every error of validate that leaves nothing to show; reports the others, too. */
Scene OpenPlayableScene(const CommandLine& line, const QString& path);

/** What a command plays with. */
class Playing
{
public:
    /** Loads the plugin that the options name; throws Failure when it cannot be loaded. */
    explicit Playing(const CommandLine& line);

    /** A player with @p scene loaded; throws Failure when that cannot be played. */
    std::unique_ptr<Player> Load(const Scene& scene) const;
    Lw::INodePlugin* Plugin() const { return plugin; }
    /** What random numbers start from. */
    uint Seed() const { return seed; }

private:
    Lw::INodePlugin* plugin;
    uint seed;
};

} // namespace AnimText

#endif
