#include "torvsdk.h"

#include "call.h"
#include "scroll.h"
#include "sessionstore.h"

#include <climits>
#include <cstring>

using Torv::Call;
using Torv::Layer;
using Torv::Session;
using Torv::SessionStore;

namespace {

const int AlphaType = 3;
const int KeyType = 5;
const int SessionFlags = 16;
const int ForWriting = 5;

SessionStore& Store()
{
    return SessionStore::Instance();
}

/** Copies what is given. */
template <typename Record>
bool Take(const Record* given, Record& copy)
{
    if (given)
        copy = *given;
    return given;
}

/**
 * The call's live session, on its display unless the call has none; null, with the mistake counted,
 * if there is none or the call fails on demand.
 */
Session* FindSession(Call& call)
{
    if (call.IsFaulted())
        return 0;
    Session* const session = Store().Find(call.session);
    if (!session)
        call.Reject(call.session == 0 ? Torv::ZeroHandle : Torv::StaleHandle);
    return session;
}

/** The same for a session that must be on the call's display. */
Session* FindShownSession(Call& call)
{
    Session* const session = FindSession(call);
    if (session && (call.display == 0 || session->display != call.display)) {
        call.Reject(Torv::WrongDisplay);
        return 0;
    }
    return session;
}

Layer* FindLayer(Call& call)
{
    Session* const session = FindShownSession(call);
    if (!session)
        return 0;
    Layer* const layer = session->FindLayer(call.layer);
    if (!layer)
        call.Reject(Torv::BadLayer);
    return layer;
}

/** Null if it is not @p isSane, with the mistake counted. */
template <typename T>
T* Checked(Call& call, T* found, bool isSane)
{
    if (!found || isSane)
        return found;
    call.Reject(Torv::BadArgument);
    return 0;
}

/** The buffer to paint; addresses differ from run to run, so the log has its number. */
char* AnswerBack(Call& call, const Layer& layer)
{
    call.result = layer.Back() ? layer.BackIndex() : -1;
    return layer.Back();
}

bool AreRowsSane(int width, int height, int bytesPerLine, int bytesPerPixel)
{
    if (width < 0 || height < 0)
        return false;
    return width == 0 || height == 0 ||
           (bytesPerLine % 4 == 0 && bytesPerLine >= qint64(width) * bytesPerPixel);
}

bool IsCreationSane(int type, const PicImage* image, int flags, const Effect* effect,
                    const PicPlacement* placement)
{
    if ((type != AlphaType && type != KeyType) || flags != SessionFlags)
        return false;
    if (!image || !effect || !placement)
        return false;
    return AreRowsSane(image->width, image->height, image->bytesPerLine,
                       type == AlphaType ? 4 : 3) &&
           placement->imageWidth == image->width && placement->imageHeight == image->height;
}

std::unique_ptr<Layer> NewLayer(int width, int height, int bytesPerLine, unsigned int pixelWord)
{
    // An empty picture has no rows, whatever its row length.
    if (width == 0 || height == 0)
        return std::unique_ptr<Layer>(new Layer(0, 0, 0, pixelWord));
    return std::unique_ptr<Layer>(new Layer(width, height, bytesPerLine, pixelWord));
}

} // namespace

PicSession CreatePictureSession(int type, const PicImage* image, int flags, const Effect* effect,
                                const PicPlacement* placement, unsigned int pixelWord)
{
    Call call(Torv::OpCreatePictureSession);
    call.type = type;
    call.hasImage = Take(image, call.image);
    call.flags = flags;
    call.hasEffect = Take(effect, call.effect);
    call.hasPlacement = Take(placement, call.placement);
    call.pixelWord = pixelWord;
    if (call.IsFaulted())
        return 0;
    if (!IsCreationSane(type, image, flags, effect, placement)) {
        call.Reject(Torv::BadArgument);
        return 0;
    }

    Session* const session = Store().Create();
    if (!session) {
        call.Refuse();
        return 0;
    }
    session->type = type;
    session->effect = *effect;
    session->placement = *placement;

    const int width = image->bits ? image->width : 0;
    if (Store().AddLayer(session, NewLayer(width, image->height, image->bytesPerLine, pixelWord)) <
        0) {
        Store().Free(session);
        call.Refuse();
        return 0;
    }
    const Layer& base = *session->layers[0];
    for (int buffer = 0; buffer < 2 && !base.IsEmpty(); ++buffer)
        std::memcpy(base.memory.Buffer(buffer), image->bits, size_t(base.BufferBytes()));
    return call.Answer(session->handle);
}

int AddPictureSession(PicDisplay display, PicSession session, int reserved)
{
    Call call(Torv::OpAddPictureSession, display, session);
    call.reserved = reserved;
    Session* const found = FindSession(call);
    if (!found)
        return -1;
    if (found->display != 0 || !Store().HasDisplay(display)) {
        call.Reject(Torv::WrongDisplay);
        return -1;
    }
    Store().Show(found, display, Torv::Now());
    return call.Answer(0);
}

int PicAppendImageLayer(PicDisplay display, PicSession session, int width, int height,
                        int bytesPerLine, unsigned int pixelWord)
{
    Call call(Torv::OpPicAppendImageLayer, display, session);
    call.width = width;
    call.height = height;
    call.bytesPerLine = bytesPerLine;
    call.pixelWord = pixelWord;
    Session* const found = FindShownSession(call);
    if (!found)
        return -1;
    if (!AreRowsSane(width, height, bytesPerLine, found->BytesPerPixel())) {
        call.Reject(Torv::BadArgument);
        return -1;
    }
    const int index = Store().AddLayer(found, NewLayer(width, height, bytesPerLine, pixelWord));
    if (index < 0)
        call.Refuse();
    return call.Answer(index);
}

char* GetPicImageLayerPtr(PicDisplay display, PicSession session, int layer, int mode)
{
    Call call(Torv::OpGetPicImageLayerPtr, display, session);
    call.layer = layer;
    call.mode = mode;
    const Layer* const found = Checked(call, FindLayer(call), mode == ForWriting);
    return found ? AnswerBack(call, *found) : 0;
}

char* SwapPicImageLayerPtr(PicDisplay display, PicSession session, int layer)
{
    Call call(Torv::OpSwapPicImageLayerPtr, display, session);
    call.layer = layer;
    Layer* const found = FindLayer(call);
    if (!found)
        return 0;
    found->Swap();
    return AnswerBack(call, *found);
}

int SetPicLayerBlend(PicDisplay display, PicSession session, int layer, int value)
{
    Call call(Torv::OpSetPicLayerBlend, display, session);
    call.layer = layer;
    call.value = value;
    Layer* const found = Checked(call, FindLayer(call), value >= 0 && value <= 2);
    if (!found)
        return -1;
    found->blend = value;
    return call.Answer(0);
}

int RemovePictureSession(PicDisplay display, PicSession session)
{
    Call call(Torv::OpRemovePictureSession, display, session);
    Session* const found = FindShownSession(call);
    if (!found)
        return -1;
    Store().Hide(found);
    return call.Answer(0);
}

int FreePictureSession(PicSession session)
{
    Call call(Torv::OpFreePictureSession, 0, session);
    // Frees the session even when a test makes the call fail: the caller cannot free it twice.
    Session* const found = call.IsFaulted() ? Store().Find(session) : FindSession(call);
    if (found)
        Store().Free(found);
    if (!found || call.IsFaulted())
        return -1;
    return call.Answer(0);
}

int GeteffectDuration(int length, int areaHeight, int effectCode, int speedIndex)
{
    Call call(Torv::OpGeteffectDuration);
    call.length = length;
    call.areaHeight = areaHeight;
    call.effectCode = effectCode;
    call.speedIndex = speedIndex;
    const bool scrolls = effectCode == Torv::ScrollLeft || effectCode == Torv::ScrollRight;
    if (call.IsFaulted() || !scrolls)
        return 0;

    const double tick = 66.0; // milliseconds
    const double speed = double(speedIndex) + 1;
    const double duration = speed < 5 ? length * tick * (6 - speed) : length / (speed - 4) * tick;
    return call.Answer(int(qBound(0.0, duration, double(INT_MAX))));
}
