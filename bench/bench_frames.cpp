// What a tick costs: every motion of the texts of the scenes named on the command line, one motion
// before every background, held pages and starts. Without the engine's own objects of this source
// tree it measures an older plugin: script/bench builds it twice and prints both beside each other.
#include "scenenode.h"

#include "engine/animationrealization.h"
#include "player/virtualdispatcher.h"
#include "render/hanimationtextrender.h"

#include <display.h>
#include <hpluginmanager.h>

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QPainterPath>

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#else
#define CALLGRIND_ZERO_STATS
#define CALLGRIND_DUMP_STATS_AT(name) (void)(name)
#endif

#include <cstring>
#include <ctime>

using Lw::HPluginManager;
using Lw::HNodeAnimationText::animationRealization;
using Lw::HNodeAnimationText::HAnimationTextNode;
using Lw::HNodeAnimationText::HAnimationTextRender;

#ifdef BENCH_OTHER_PAINTERS
void RegisterOtherPainters(const std::string& page, const QVector<QPainterPath>& glyphs,
                           const QVector<QPointF>& places, QSize size);
#endif

namespace {

const int entrance = 0;
const int scroll = 1;
const int heldPage = 4; // an effect whose last frame shows the page as the hold does
const int fastest = 9;  // of the speeds: every tick draws
const int waves = 5;

// A scene's text, as whom it plays.
struct Page
{
    QString scene;
    bool alpha;        // in 32 bits a pixel, otherwise in 24
    bool fullOutlines; // as other editors write them, not on a grid of 1/64 pixel

    std::string Name() const
    {
        return QFileInfo(scene).completeBaseName().toStdString() + (fullOutlines ? " full"
                                                                    : alpha      ? ""
                                                                                 : " rgb");
    }
};

typedef std::vector<std::pair<const char*, int>> Attributes;

std::unique_ptr<HAnimationTextNode> NodeOf(const Page& page, int mode, int motion,
                                           const Attributes& others = {})
{
    HPluginManager::instance()->SetAlphaBlend(page.alpha);
    std::unique_ptr<HAnimationTextNode> node = NodeOfScene(page.scene);
    if (page.fullOutlines)
        node->SetFiles("PathData", {FullOutlines(*node, page.scene + ".full")});
    Attributes attributes{{"EffectType", mode},       {"AnimationEffect", motion},
                          {"ContinueStyle", motion},  {"AnimationSpeed", fastest},
                          {"ContinueSpeed", fastest}, {"PlayTimes", 1}};
    attributes.insert(attributes.end(), others.begin(), others.end());
    for (const auto& attribute : attributes)
        node->SetAttribute(attribute.first, attribute.second);
    node->SetHoldTime(0);
    return node;
}

// Whole ticks, of whatever has a timer: the text, its backgrounds and the device's swaps.
struct Show
{
    Show(const Page& page, int mode, int motion, const Attributes& others)
        : node(NodeOf(page, mode, motion, others))
        , display(node->Size())
        , render(new HAnimationTextRender(node.get()))
    {
        render->Start(display.Handle());
    }

    void Tick()
    {
        AnimText::player::VirtualDispatcher* const clock =
            AnimText::player::VirtualDispatcher::Current();
        clock->AdvanceTo(clock->Now() + 66);
    }

    std::unique_ptr<HAnimationTextNode> node;
    Torv::Display display;
    std::unique_ptr<HAnimationTextRender> render;
};

double Seconds()
{
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

struct Play
{
    Play(const Page& page, int motion)
        : node(NodeOf(page, entrance, motion))
    {
        engine.Init(node.get());
        engine.Start();
    }

    std::unique_ptr<HAnimationTextNode> node;
    animationRealization engine{nullptr};
};

const int leastFrames = 2000;   // so many are measured, in whole runs, ...
const double longRun = 1;       // ... but one run when it takes more seconds than this
const int longestRun = 1 << 15; // in ticks: what does not end is cut

// How long a run takes. Callgrind, if it is there, notes what the ticks after the first one cost.
int TicksOfRun(const Page& page, const std::string& row, int mode, int motion,
               const Attributes& others)
{
    Show show(page, mode, motion, others);
    int ticks = 1;
    CALLGRIND_ZERO_STATS;
    while (show.render->renderState() == 1 && ticks < longestRun) {
        show.Tick();
        ++ticks;
    }
    const std::string what = page.Name() + "/" + row + "/" + std::to_string(ticks - 1);
    CALLGRIND_DUMP_STATS_AT(what.c_str());
    return ticks;
}

// One tick of a motion, averaged over the whole motion.
void Tick(benchmark::State& state, const Page& page, int mode, int motion, const Attributes& others)
{
    Show show(page, mode, motion, others);
    for (auto _ : state)
        show.Tick();
}

// The same of its first run, in which nothing is kept yet.
void FirstRun(benchmark::State& state, const Page& page, int motion, int ticks)
{
    for (auto _ : state) {
        Show show(page, entrance, motion, {});
        const double begin = Seconds();
        for (int i = 1; i < ticks; ++i)
            show.Tick();
        state.SetIterationTime((Seconds() - begin) / (ticks - 1));
    }
}

// The frame that a hold paints, after the last one of an entrance.
void Hold(benchmark::State& state, const Page& page)
{
    Play play(page, heldPage);
    const int length = play.node->Text().size();
    for (auto _ : state) {
        for (int i = 0; i <= length; ++i)
            play.engine.DrawAndUpdateImage();
        const double begin = Seconds();
        play.engine.UpdateStayImage();
        state.SetIterationTime(Seconds() - begin);
    }
}

void Start(benchmark::State& state, const Page& page)
{
    Play play(page, 0);
    for (auto _ : state) {
        play.engine.Init(play.node.get());
        play.engine.Start();
        play.engine.DrawAndUpdateImage();
    }
}

// What no frame can do without: the picture's bytes written once.
void Copy(benchmark::State& state, QSize size, int bytesPerPixel)
{
    const size_t bytes = size_t(size.width() * size.height() * bytesPerPixel);
    std::vector<char> from(bytes, 1), to(bytes);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), bytes);
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
}

void RegisterScene(const Page& page)
{
    const std::string name = page.Name();
    const auto add = [&](const std::string& row, auto measure) {
        return benchmark::RegisterBenchmark((name + "/" + row).c_str(), measure);
    };
    const auto addMotion = [&](const std::string& row, int mode, int motion,
                               const Attributes& others) {
        const double begin = Seconds();
        const int run = TicksOfRun(page, row, mode, motion, others);
        const int frames = Seconds() - begin > longRun ? run : leastFrames;
        add(row, [=](benchmark::State& state) {
            Tick(state, page, mode, motion, others);
        })->Iterations((frames + run - 1) / run * run);
    };
    if (page.fullOutlines) {
        for (const int effect : {4, waves}) { // word by word; waves
            const std::string row = "effect " + std::to_string(effect);
            const int run = TicksOfRun(page, row, entrance, effect, {});
            add(row, [=](benchmark::State& state) { FirstRun(state, page, effect, run); })
                ->UseManualTime()
                ->Iterations(leastFrames / run);
        }
        return;
    }
    for (int effect = 0; effect < 30; ++effect)
        addMotion("effect " + std::to_string(effect), entrance, effect, {});
    addMotion("scroll up", scroll, 2, {});
    addMotion("scroll down", scroll, 3, {});
    addMotion("waves before plain", entrance, waves, {{"CheckDazzle", 1}});
    const char* const gradients[] = {"linear", "radial", "conical"};
    for (int i = 0; i < 3; ++i)
        addMotion(std::string("waves before ") + gradients[i], entrance, waves,
                  {{"CheckDazzle", 1}, {"CheckColorGradient", 1}, {"ColorGradient", i}});
    addMotion("waves before neon", entrance, waves, {{"CheckNeonBg", 1}});
    add("hold", [=](benchmark::State& state) { Hold(state, page); })->UseManualTime();
    add("start", [=](benchmark::State& state) { Start(state, page); });

    const auto node = NodeOf(page, entrance, 0);
    const QSize size = node->Size();
    add("memcpy", [=](benchmark::State& state) { Copy(state, size, page.alpha ? 4 : 3); });
#ifdef BENCH_OTHER_PAINTERS
    const QVector<QPainterPath> glyphs = node->GetPainterPaths();
    QVector<QPointF> places;
    for (int i = 0; i < glyphs.size(); ++i)
        places.append(QPointF(node->GetTextCountWith(i), size.height() * 3 / 4));
    if (page.alpha)
        RegisterOtherPainters(name, glyphs, places, size);
#endif
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setEventDispatcher(new AnimText::player::VirtualDispatcher);
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: bench_frames [--benchmark_...] SCENE.json...\n");
        return 2;
    }
    for (int i = 1; i < argc; ++i)
        for (const Page& page : {Page{QFile::decodeName(argv[i]), true, false},
                                 Page{QFile::decodeName(argv[i]), false, false},
                                 Page{QFile::decodeName(argv[i]), true, true}})
            RegisterScene(page);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
