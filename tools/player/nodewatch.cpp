#include "player/nodewatch.h"

#include "player/callline.h"

namespace AnimText {

NodeWatch::NodeWatch(Player* player)
    : player(player)
    , shown(player->NodeCount())
{
}

NodeTick NodeWatch::Look(int node)
{
    const bool swapped = player->Swapped(node);
    if (swapped || player->Tick() == 0) {
        const QImage picture = player->TextPicture(node);
        shown[node] = {picture.size(), Sha1Of(picture)};
    }
    const QImage dazzle = player->DazzlePicture(node);
    return {player->Tick(),      swapped,
            shown.at(node).size, shown.at(node).sha1,
            player->State(node), dazzle.isNull() ? QByteArray() : Sha1Of(dazzle)};
}

} // namespace AnimText
