/**
 * @file
 * What tests read and set inside the plugin's classes; each field by its name.
 */
#pragma once

#include "engine/animationrealization.h"
#include "node/hanimationtextnode.h"
#include "render/hanimationtextrender.h"

#include <QStringList>

#define PROBE(object, field)                                                                       \
    decltype(auto) field() const                                                                   \
    {                                                                                              \
        return (object.field);                                                                     \
    }

namespace Lw {
namespace HNodeAnimationText {

class EngineProbe
{
public:
    explicit EngineProbe(animationRealization& engine)
        : engine(engine)
    {
    }

    PROBE(engine, charIndex)
    PROBE(engine, charCount)
    PROBE(engine, moveOffset)
    PROBE(engine, moveOffset2)
    PROBE(engine, progressF)
    PROBE(engine, isDrawing)
    PROBE(engine, playFinished)
    PROBE(engine, runEnded)
    PROBE(engine, playCount)
    PROBE(engine, pageIndex)
    PROBE(engine, pageBreaks)
    PROBE(engine, pageOffsets)
    PROBE(engine, charPositions)
    PROBE(engine, textPath)
    PROBE(engine, auxPath)
    PROBE(engine, drawImage)
    PROBE(engine, frameCount)
    PROBE(engine, stayPageIndex)
    PROBE(engine, stepSize)
    PROBE(engine, dazzleTimer)
    PROBE(engine, neonBg)
    PROBE(engine, pictureSession)
    PROBE(engine, sessionLayer)
    PROBE(engine, dazzleLayer)
    PROBE(engine, dazzleColorIndex)
    PROBE(engine, stayImage)
    PROBE(engine, fillImageSize)

private:
    animationRealization& engine;
};

class NodeProbe
{
public:
    explicit NodeProbe(HAnimationTextNode& node)
        : node(node)
    {
    }

    PROBE(node, pageBreaks)
    PROBE(node, pageOffsets)

private:
    HAnimationTextNode& node;
};

class RenderProbe
{
public:
    explicit RenderProbe(HAnimationTextRender& render)
        : render(render)
    {
    }

    EngineProbe Engine() const { return EngineProbe(*render.engine); }
    animationRealization& EngineItself() const { return *render.engine; }
    PROBE(render, session)
    PROBE(render, drawTimer)

private:
    HAnimationTextRender& render;
};

} // namespace HNodeAnimationText
} // namespace Lw

#undef PROBE

/** For each rectangle in @p path its first corner and the one opposite, "x,y x,y; x,y x,y". */
inline QString CornersOf(const Lw::HNodeAnimationText::Outline& path)
{
    const std::size_t elementsEach = 5; // around and back to the first corner
    const auto corner = [&path](std::size_t element) {
        // No negative zero; hundredths, which is finer than a picture shows.
        const auto number = [](float value) {
            return QString::number(qRound64(double(value) * 100) / 100.0 + 0.0, 'g', 8);
        };
        return number(path.At(element).x) + "," + number(path.At(element).y);
    };
    QStringList rectangles;
    for (std::size_t i = 0; i + elementsEach <= path.Size(); i += elementsEach)
        rectangles.append(corner(i) + " " + corner(i + 2));
    return rectangles.join("; ");
}

/** Of the glyphs that a frame collects: the one place that knows what they are kept in. */
inline QString Corners(const Lw::HNodeAnimationText::EngineProbe& engine)
{
    return CornersOf(engine.textPath().Path());
}
