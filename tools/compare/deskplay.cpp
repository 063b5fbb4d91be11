#include "compare/deskplay.h"

#include "cli/interruption.h"
#include "compare/difference.h"
#include "player/callline.h"

#include <QJsonDocument>

namespace AnimText::compare {

Recording PlayOnDesk(player::Player* player, uint seed, Recording* recorded,
                     QMap<int, QImage>* differing)
{
    constexpr int longestSilence = 100000; // ticks; a play that has ended makes no more calls
    DropStops(recorded, Stops::Anywhere);
    Recording desk;
    desk.name = "the desktop";
    int lastCall = 0; // its tick
    int missing = recorded->All().size() - recorded->sessions.first().size();
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
        lastCall = player->Tick();
        QVector<RecordedCall>& calls = desk.sessions[session];
        const QVector<RecordedCall> known = recorded->sessions.value(session);
        if (session > 0 && calls.size() > known.size())
            return calls.removeLast(); // it came after the recording
        missing -= session > 0;
        if (AreKnownAndDiffer(known.value(calls.size() - 1).sha1, calls.last().sha1) &&
            !differing->contains(session))
            differing->insert(session, shown);
    });
    const auto takeBackgrounds = [&] {
        for (int node = 0; node < player->NodeCount(); ++node)
            desk.TakeBackground(node + 1, player->Time(),
                                QString::fromLatin1(player::Sha1Of(player->DazzlePicture(node))));
    };
    player->Start(seed);
    takeBackgrounds();
    while (missing > 0 && player->Tick() - lastCall < longestSilence) {
        player->Advance();
        takeBackgrounds();
        cli::StopIfInterrupted();
    }
    player->Scenery().WatchCalls(nullptr);
    return desk;
}

} // namespace AnimText::compare
