// What the plugin costs: starting and measuring texts of growing length, and a frame of each
// motion. Ends with the ratio of a start of 10,000 characters to one of 1,000, which should stay
// near 10.
#include "enginefixture.h"

#include <display.h>

#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <map>

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

// Of twelve characters, averaged over the whole motion.
void Frame(benchmark::State& state, int mode, int motion)
{
    EngineFixture play(LongText(12, signSize));
    play.Start({{"EffectType", mode}, {"AnimationEffect", motion}, {"ContinueStyle", motion}});
    for (auto _ : state)
        play.DrawFrame();
}

// Remembers the times of the starts for the ratio.
class Reporter : public benchmark::ConsoleReporter
{
public:
    Reporter()
        : ConsoleReporter(OO_Tabular)
    {
    }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
            if (run.run_name.function_name == "Start" && !run.error_occurred)
                starts[run.run_name.args] = run.GetAdjustedCPUTime();
        ConsoleReporter::ReportRuns(runs);
    }

    std::map<std::string, double> starts; // by length
};

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;

    const auto lengths = [](benchmark::internal::Benchmark* measured) {
        measured->RangeMultiplier(10)
            ->Range(100, 10000)
            ->Complexity()
            ->Unit(benchmark::kMicrosecond);
    };
    lengths(benchmark::RegisterBenchmark("Start", Start));
    lengths(benchmark::RegisterBenchmark("Duration", Duration));
    lengths(benchmark::RegisterBenchmark("InitPainterPath", InitPainterPath));
    const auto frame = [](const std::string& name, int mode, int motion) {
        benchmark::RegisterBenchmark(("Frame/" + name).c_str(), Frame, mode, motion)
            ->Unit(benchmark::kMicrosecond);
    };
    for (int effect : EffectNumbers())
        frame("effect " + std::to_string(effect), 0, effect);
    const char* const directions[] = {"left", "right", "up", "down"};
    for (int style = 0; style < 4; ++style)
        frame(directions[style], 1, style);

    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    if (reporter.starts.count("1000") && reporter.starts.count("10000"))
        std::printf("Start of 10,000 characters costs %.1f times that of 1,000.\n",
                    reporter.starts["10000"] / reporter.starts["1000"]);
    return 0;
}
