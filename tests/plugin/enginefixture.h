/**
 * @file
 * An engine that plays a text of rectangles into its own image, without a renderer.
 */
#pragma once

#include "node/motions.h"
#include "probes.h"
#include "rectangletext.h"

using Lw::HNodeAnimationText::animationRealization;
using Lw::HNodeAnimationText::EngineProbe;

/** The effects that play; those with a frog are apart. */
inline QVector<int> EffectNumbers()
{
    QVector<int> numbers;
    for (int effect = 0; effect <= Lw::HNodeAnimationText::Entrance::Last; ++effect)
        if (effect != 19 && effect != 20)
            numbers.append(effect);
    return numbers;
}

class EngineFixture : public EngineProbe
{
public:
    explicit EngineFixture(RectangleText shape = RectangleText::TwoPages())
        : EngineProbe(engine)
        , text(std::move(shape))
    {
    }

    void Start(std::initializer_list<std::pair<const char*, int>> attributes, int hold = 0)
    {
        text.Set(attributes);
        text.node->SetHoldTime(hold);
        engine.Init(text.node.get());
        engine.Start();
    }

    /** Starts @p effect so that DrawFrame() draws its frames. */
    void StartEffect(int effect) { Start({{"AnimationEffect", effect}}); }

    /** One frame, whatever the speed and the hold. */
    void DrawFrame() { engine.DrawAndUpdateImage(); }

    /** One tick of the renderer; true when it drew a frame or visited a hold. */
    bool Tick()
    {
        const int before = frameCount();
        engine.PrepareImage();
        return frameCount() != before;
    }

    RectangleText text;
    animationRealization engine{nullptr};
};
