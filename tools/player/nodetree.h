/**
 * @file
 * The node tree that a host would build: program, page, area and the nodes that play.
 */
#pragma once

#include "scene/scene.h"

#include <QVector>

#include <memory>

namespace Lw {
class HNeonNodeBase;
class HNode;
class INodePlugin;
} // namespace Lw

namespace AnimText::player {

/** A program and the nodes in it that play, in the order of the file. */
struct NodeTree
{
    std::unique_ptr<Lw::HNode> program; ///< owns every node
    QVector<Lw::HNeonNodeBase*> nodes;
};

/**
 * The tree of @p scene with nodes that @p plugin creates. Throws Failure with the place in the
 * scene.
 */
NodeTree BuildNodeTree(const scene::Scene& scene, Lw::INodePlugin* plugin);

} // namespace AnimText::player
