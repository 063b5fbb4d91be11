#include "timing/pagetimes.h"

#include <algorithm>

namespace AnimText {
namespace {

constexpr int longHold = 50;    // units of 100 ms
constexpr int certainHold = 40; // ticks without a picture that only a hold can be; none of the
                                // speeds waits longer than 16 from one picture to the next

/** The scene with every page held for longer, so that holds are unmistakable. */
Scene WithLongHolds(Scene scene)
{
    for (SceneNode* node : scene.Nodes())
        node->hold = std::min(std::max(0, node->hold), 1000) + longHold;
    return scene;
}

/** The ticks at which each text handed over a picture, in one play to the end. */
struct Swaps
{
    QVector<NodePlay> nodes;
    QVector<QVector<int>> pictures;
};

bool PlayWhole(Player* player, const Scene& scene, int last, const Watch& watch, Swaps* play,
               QString* error)
{
    if (!player->Load(scene, error))
        return false;
    play->pictures = QVector<QVector<int>>(player->NodeCount());
    play->pictures.fill({0}); // the start shows the first one
    QVector<bool> finished(player->NodeCount(), false);
    bool goesOn = true;
    const auto look = [&](int tick) {
        for (int node = 0; node < player->NodeCount(); ++node) {
            if (!finished.at(node) && player->Swapped(node))
                play->pictures[node].append(tick);
            finished[node] = finished.at(node) || player->State(node) == 0;
        }
        goesOn = !watch || watch(tick);
        return goesOn;
    };
    play->nodes = PlayToEnd(player, last, standardSeed, look);
    return goesOn;
}

} // namespace

/** Pages end where nothing was painted for longer than anything except a hold can take. */
QVector<PageTime> PageTimes(const QVector<int>& actual, const QVector<int>& held, int end)
{
    QVector<PageTime> pages;
    const int count = std::min(actual.size(), held.size());
    PageTime page;
    for (int i = 0; i < count; ++i) {
        const bool last = i + 1 == count;
        if (!last && held.at(i + 1) - held.at(i) < certainHold)
            continue;
        page.hold = std::min(actual.at(i) + 1, end);
        page.end = last ? end : actual.at(i + 1);
        pages.append(page);
        page.begin = page.end;
    }
    return pages;
}

bool MeasurePages(Player* player, const Scene& scene, int longest, const Watch& watch,
                  PagedPlay* play, QString* error)
{
    const BlankScene blank(scene);
    Swaps held;
    Swaps actual;
    if (!PlayWhole(player, WithLongHolds(blank.Get()), 3 * longest, watch, &held, error) ||
        !PlayWhole(player, blank.Get(), longest, watch, &actual, error))
        return false;
    play->nodes = actual.nodes;
    play->pages.clear();
    for (int node = 0; node < actual.nodes.size(); ++node)
        play->pages.append(actual.nodes.at(node).ending == Ending::Finishes
                               ? PageTimes(actual.pictures.at(node), held.pictures.at(node),
                                           actual.nodes.at(node).finishedTick)
                               : QVector<PageTime>());
    return true;
}

} // namespace AnimText
