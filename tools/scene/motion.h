/**
 * @file
 * How the text of a node moves.
 */
#pragma once

#include "scene/catalog.h"
#include "scene/scene.h"

namespace AnimText::scene {

/** Play mode of a node, "EffectType". The sign shows the text without motion for any other number.
 */
enum class Mode { Entrance = 0, Scroll = 1, Still = 2 };

/** A node's mode and its effect or scroll. */
struct NodeMotion
{
    Mode mode = Mode::Entrance;
    int number = 0; ///< of the effect or scroll; it need not exist

    bool IsScroll() const { return mode == Mode::Scroll; }
    /** The device moves the whole line. */
    bool IsSideways() const { return Traits() & Sideways; }
    /** It scrolls up or down: the characters stand one below the other. */
    bool IsColumn() const { return IsScroll() && !IsSideways(); }
    /** Its row in the catalog; null for a still text and for unknown numbers. */
    const Motion* Row() const;
    /** Those of its row; none where there is no row. */
    MotionTraits Traits() const;
    /** The attribute that has the number: "AnimationEffect" or "ContinueStyle". */
    QString NumberKey() const;
    /** The attribute that has the speed: "AnimationSpeed" or "ContinueSpeed". */
    QString SpeedKey() const;
};

NodeMotion MotionOf(const SceneNode& node);
/** Leaves the attributes of other modes as they are. */
void SetMotion(SceneNode* node, const NodeMotion& motion);

} // namespace AnimText::scene
