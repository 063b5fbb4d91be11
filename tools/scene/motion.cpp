#include "scene/motion.h"

namespace AnimText::scene {

const Motion* NodeMotion::Row() const
{
    const QList<Motion>& motions = IsScroll() ? Scrolls() : Effects();
    const bool isThere = mode != Mode::Still && number >= 0 && number < motions.size();
    return isThere ? &motions.at(number) : nullptr;
}

MotionTraits NodeMotion::Traits() const
{
    const Motion* row = Row();
    return row ? row->traits : MotionTraits();
}

QString NodeMotion::NumberKey() const
{
    return IsScroll() ? "ContinueStyle" : "AnimationEffect";
}

QString NodeMotion::SpeedKey() const
{
    return IsScroll() ? "ContinueSpeed" : "AnimationSpeed";
}

NodeMotion MotionOf(const SceneNode& node)
{
    const int mode = node.attributes.value("EffectType").toInt();
    NodeMotion motion;
    motion.mode = mode == 0 ? Mode::Entrance : mode == 1 ? Mode::Scroll : Mode::Still;
    motion.number = node.attributes.value(motion.NumberKey()).toInt();
    return motion;
}

void SetMotion(SceneNode* node, const NodeMotion& motion)
{
    node->attributes["EffectType"] = int(motion.mode);
    node->attributes[motion.NumberKey()] = motion.number;
}

} // namespace AnimText::scene
