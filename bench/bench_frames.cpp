// What a frame costs: every motion of the texts of the scenes named on the command line, held pages
// and starts. Without the engine's own objects of this source tree it measures an older plugin:
// script/bench builds it twice and prints both beside each other.
#include "scenenode.h"

#include "engine/animationrealization.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QPainterPath>

#include <cstring>
#include <ctime>

using Lw::HNodeAnimationText::animationRealization;
using Lw::HNodeAnimationText::HAnimationTextNode;

#ifdef BENCH_OTHER_PAINTERS
void RegisterOtherPainters(const std::string& page, const QVector<QPainterPath>& glyphs,
                           const QVector<QPointF>& places, QSize size);
#endif

namespace {

const int entrance = 0;
const int scroll = 1;
const int heldPage = 4; // an effect whose last frame shows the page as the hold does
const int fastest = 9;  // of the speeds: every tick draws

struct Play
{
    Play(const QString& scene, int mode, int motion)
        : node(NodeOfScene(scene))
    {
        node->SetAttribute("EffectType", mode);
        node->SetAttribute("AnimationEffect", motion);
        node->SetAttribute("ContinueStyle", motion);
        node->SetAttribute("AnimationSpeed", fastest);
        node->SetAttribute("ContinueSpeed", fastest);
        node->SetHoldTime(0);
        engine.Init(node.get());
        engine.Start();
    }

    std::unique_ptr<HAnimationTextNode> node;
    animationRealization engine{nullptr};
};

const int leastFrames = 2000;   // so many are measured ...
const int longestRun = 1 << 15; // ... in whole runs, unless one is longer than this

int FramesOfRun(const QString& scene, int mode, int motion)
{
    Play play(scene, mode, motion);
    int frames = 0;
    while (play.engine.GetDisplayTimes() == 0 && frames < longestRun) {
        play.engine.PrepareImage();
        ++frames;
    }
    return frames;
}

// One frame of a motion, averaged over the whole motion.
void Frame(benchmark::State& state, const QString& scene, int mode, int motion)
{
    Play play(scene, mode, motion);
    for (auto _ : state)
        play.engine.PrepareImage();
}

double Seconds()
{
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

// The frame that a hold paints, after the last one of an entrance.
void Hold(benchmark::State& state, const QString& scene)
{
    Play play(scene, entrance, heldPage);
    const int length = play.node->Text().size();
    for (auto _ : state) {
        for (int i = 0; i <= length; ++i)
            play.engine.DrawAndUpdateImage();
        const double begin = Seconds();
        play.engine.UpdateStayImage();
        state.SetIterationTime(Seconds() - begin);
    }
}

void Start(benchmark::State& state, const QString& scene)
{
    Play play(scene, entrance, 0);
    for (auto _ : state) {
        play.engine.Init(play.node.get());
        play.engine.Start();
        play.engine.DrawAndUpdateImage();
    }
}

// What no frame can do without: the picture's bytes written once.
void Copy(benchmark::State& state, QSize size)
{
    const size_t bytes = size_t(size.width()) * size_t(size.height()) * 4;
    std::vector<char> from(bytes, 1), to(bytes);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), bytes);
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
}

void RegisterScene(const QString& scene)
{
    const std::string page = QFileInfo(scene).completeBaseName().toStdString();
    const auto add = [&page](const std::string& name, auto measure) {
        return benchmark::RegisterBenchmark((page + "/" + name).c_str(), measure);
    };
    const auto addMotion = [&](const std::string& name, int mode, int motion) {
        const int run = FramesOfRun(scene, mode, motion);
        add(name, [=](benchmark::State& state) {
            Frame(state, scene, mode, motion);
        })->Iterations((leastFrames + run - 1) / run * run);
    };
    for (int effect = 0; effect < 30; ++effect)
        addMotion("effect " + std::to_string(effect), entrance, effect);
    addMotion("scroll up", scroll, 2);
    addMotion("scroll down", scroll, 3);
    add("hold", [=](benchmark::State& state) { Hold(state, scene); })->UseManualTime();
    add("start", [=](benchmark::State& state) { Start(state, scene); });

    const auto node = NodeOfScene(scene);
    const QSize size = node->Size();
    add("memcpy", [=](benchmark::State& state) { Copy(state, size); });
#ifdef BENCH_OTHER_PAINTERS
    const QVector<QPainterPath> glyphs = node->GetPainterPaths();
    QVector<QPointF> places;
    for (int i = 0; i < glyphs.size(); ++i)
        places.append(QPointF(node->GetTextCountWith(i), size.height() * 3 / 4));
    RegisterOtherPainters(page, glyphs, places, size);
#endif
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: bench_frames [--benchmark_...] SCENE.json...\n");
        return 2;
    }
    for (int i = 1; i < argc; ++i)
        RegisterScene(QFile::decodeName(argv[i]));
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
