// How the cost of starting and measuring a text grows with its length; it should stay in
// proportion.
#include "rectangletext.h"
#include "render/hanimationtextrender.h"

#include <display.h>

#include <benchmark/benchmark.h>

#include <QGuiApplication>

using Lw::HNodeAnimationText::HAnimationTextRender;

namespace {

const int characterWidth = 24;

// Rounded shapes of about as many elements as letters have.
RectangleText LongText(int length, QSize area)
{
    RectangleText text(QVector<int>(length, characterWidth), QVector<int>(length, 40),
                       QVector<int>(length, 8), area);
    QPainterPath letter;
    letter.addEllipse(2, -30, 20, 30);
    letter.addEllipse(7, -25, 10, 20);
    letter.addRoundedRect(QRectF(16, -38, 6, 38), 2, 2);
    text.SetGlyphs(QVector<QPainterPath>(length, letter));
    return text;
}

const QSize signSize(512, 64);

void Start(benchmark::State& state)
{
    RectangleText text = LongText(int(state.range(0)), signSize);
    text.Set({{"AnimationEffect", 5}});
    const Torv::Display display(signSize);
    HAnimationTextRender render(text.node.get());
    for (auto _ : state)
        render.Start(display.Handle());
    state.SetComplexityN(state.range(0));
}

void Duration(benchmark::State& state)
{
    RectangleText text = LongText(int(state.range(0)), signSize);
    text.Set({{"AnimationEffect", 5}});
    for (auto _ : state)
        benchmark::DoNotOptimize(text.node->Duration());
    state.SetComplexityN(state.range(0));
}

void InitPainterPath(benchmark::State& state)
{
    RectangleText text = LongText(int(state.range(0)), signSize);
    for (auto _ : state)
        text.node->InitPainterPath();
    state.SetComplexityN(state.range(0));
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    using Row = std::pair<const char*, void (*)(benchmark::State&)>;
    for (const Row& row :
         {Row{"Start", Start}, Row{"Duration", Duration}, Row{"InitPainterPath", InitPainterPath}})
        benchmark::RegisterBenchmark(row.first, row.second)
            ->RangeMultiplier(10)
            ->Range(100, 10000)
            ->Complexity()
            ->Unit(benchmark::kMicrosecond);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
