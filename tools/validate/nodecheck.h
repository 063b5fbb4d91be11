/**
 * @file
 * The checks on one node of a scene.
 */
#pragma once

#include "validate/validate.h"

namespace AnimText::validate {

/** The mistakes in one node, in the order of the scene file. */
QList<Finding> CheckNode(const scene::Scene& scene, const scene::Place& place);

} // namespace AnimText::validate
