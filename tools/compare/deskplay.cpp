#include "compare/deskplay.h"

#include "player/callline.h"

#include <QJsonDocument>

#include <algorithm>

namespace AnimText::compare {

namespace {

// A play that has ended makes no more calls.
constexpr int longestSilence = 100000; // ticks

bool IsAsLong(const Recording& desk, const Recording& recorded)
{
    for (int i = 1; i < recorded.sessions.size(); ++i) {
        if (desk.sessions.value(i).size() < recorded.sessions.at(i).size())
            return false;
    }
    return true;
}

/** Calls after the last recorded call of a session came after the recording. */
void CutTo(const Recording& recorded, Recording* desk)
{
    for (int i = 1; i < desk->sessions.size(); ++i)
        desk->sessions[i].resize(
            std::min(desk->sessions.at(i).size(), recorded.sessions.value(i).size()));
}

} // namespace

bool PlayOnDesk(player::Player* player, const scene::Scene& scene, uint seed,
                const std::function<bool()>& goOn, Recording* recorded, Recording* desk,
                PicturePlace wanted, QImage* picture, QString* error)
{
    DropStops(recorded, Stops::Anywhere);
    if (!player->Load(scene, error))
        return false;
    desk->name = "the desktop";
    int lastCall = 0; // its tick
    player->Scenery().WatchCalls([&](const Torv::CallRecord& call) {
        QImage shown;
        if (call.operation == Torv::OpCreatePictureSession && call.result)
            shown = Torv::FrontImage(PicSession(call.result), 0);
        if (call.operation == Torv::OpSwapPicImageLayerPtr)
            shown = Torv::FrontImage(call.session, call.layer);
        const QJsonObject line = QJsonDocument::fromJson(player::CallLine(call)).object();
        desk->TakeCall(line, 0, player->Time(), QString::fromLatin1(player::Sha1Of(shown)));
        lastCall = player->Tick();
        if (wanted.session >= 0 && picture->isNull() &&
            desk->sessions.value(wanted.session).size() == wanted.call + 1)
            *picture = shown;
    });
    const auto takeBackgrounds = [&] {
        for (int node = 0; node < player->NodeCount(); ++node)
            desk->TakeBackground(node + 1, player->Time(),
                                 QString::fromLatin1(player::Sha1Of(player->DazzlePicture(node))));
    };
    player->Start(seed);
    takeBackgrounds();
    while (!IsAsLong(*desk, *recorded) && player->Tick() - lastCall < longestSilence) {
        player->Advance();
        takeBackgrounds();
        if (!goOn()) {
            *error = "interrupted";
            return false;
        }
    }
    player->Scenery().WatchCalls(nullptr);
    CutTo(*recorded, desk);
    return true;
}

} // namespace AnimText::compare
