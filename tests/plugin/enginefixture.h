/**
 * @file
 * An engine that plays a text of rectangles into an image of its own, without a renderer.
 */
#ifndef TESTS_ENGINEFIXTURE_H
#define TESTS_ENGINEFIXTURE_H

#include "probes.h"
#include "rectangletext.h"

using Lw::HNodeAnimationText::animationRealization;
using Lw::HNodeAnimationText::EngineProbe;

/** The zoom with reflection, which no effect number selects. */
const int reflection = 30;

/** The effects that play, after @p numbers; those with a frog have tests of their own. */
inline QVector<int> EffectNumbers(QVector<int> numbers = {})
{
    for (int effect = 0; effect < 30; ++effect)
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

    /** Starts @p effect so that DrawFrame() draws its frames, @p step steps each. */
    void StartEffect(int effect, int step = 1, int hold = 0)
    {
        withReflection = effect == reflection;
        Start({{"AnimationEffect", withReflection ? 99 : effect}}, hold);
        stepSize() = step;
    }

    /** One frame, whatever the speed and the hold. */
    void DrawFrame()
    {
        engine.DrawAndUpdateImage();
        if (withReflection)
            engine.EffectUpwardZoomWithReflection();
    }

    /** One tick of the renderer; true when it drew a frame or visited a hold. */
    bool Tick()
    {
        const int before = frameCount();
        engine.PrepareImage();
        return frameCount() != before;
    }

    RectangleText text;
    animationRealization engine{nullptr};
    bool withReflection = false;
};

/** For each rectangle in @p path its first corner and the one opposite, "x,y x,y; x,y x,y". */
inline QString Corners(const Lw::HNodeAnimationText::Outline& path)
{
    const int elementsEach = 5; // around and back to the first corner
    const auto corner = [&path](int element) {
        const QPointF at(path.At(size_t(element)).x, path.At(size_t(element)).y);
        // No negative zero; hundredths, which is finer than a picture shows.
        const auto number = [](qreal value) {
            return QString::number(qRound64(value * 100) / 100.0 + 0.0, 'g', 8);
        };
        return number(at.x()) + "," + number(at.y());
    };
    QStringList glyphs;
    for (int i = 0; i + elementsEach <= int(path.Size()); i += elementsEach)
        glyphs.append(corner(i) + " " + corner(i + 2));
    return glyphs.join("; ");
}

#endif
