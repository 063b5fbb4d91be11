#include "compare/deskplay.h"

#include "cli/interruption.h"
#include "compare/difference.h"
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

Recording PlayOnDesk(player::Player* player, uint seed, Recording* recorded,
                     QMap<int, QImage>* differing)
{
    DropStops(recorded, Stops::Anywhere);
    Recording desk;
    desk.name = "the desktop";
    int lastCall = 0; // its tick
    player->Scenery().WatchCalls([&](const Torv::CallRecord& call) {
        QImage shown;
        if (call.operation == Torv::OpCreatePictureSession && call.result)
            shown = Torv::FrontImage(PicSession(call.result), 0);
        if (call.operation == Torv::OpSwapPicImageLayerPtr)
            shown = Torv::FrontImage(call.session, call.layer);
        QJsonObject line = QJsonDocument::fromJson(player::CallLine(call)).object();
        line["ms"] = player->Time();
        line["sha1"] = QString::fromLatin1(player::Sha1Of(shown));
        const int session = desk.TakeCall(line, 0);
        const QVector<RecordedCall>& calls = desk.sessions.at(session);
        const RecordedCall known = recorded->sessions.value(session).value(calls.size() - 1);
        if (AreKnownAndDiffer(known.sha1, calls.last().sha1) && !differing->contains(session))
            differing->insert(session, shown);
        lastCall = player->Tick();
    });
    const auto takeBackgrounds = [&] {
        for (int node = 0; node < player->NodeCount(); ++node)
            desk.TakeBackground(node + 1, player->Time(),
                                QString::fromLatin1(player::Sha1Of(player->DazzlePicture(node))));
    };
    player->Start(seed);
    takeBackgrounds();
    while (!IsAsLong(desk, *recorded) && player->Tick() - lastCall < longestSilence) {
        player->Advance();
        takeBackgrounds();
        cli::StopIfInterrupted();
    }
    player->Scenery().WatchCalls(nullptr);
    CutTo(*recorded, &desk);
    return desk;
}

} // namespace AnimText::compare
