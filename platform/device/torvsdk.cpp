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

/** The live session; null, with the mistake counted, if there is none or the call fails on demand.
 */
Session* FindSession(Call& call, PicSession handle)
{
    if (call.IsFaulted())
        return 0;
    Session* const session = Store().Find(handle);
    if (!session)
        call.Reject(handle == 0 ? Torv::ZeroHandle : Torv::StaleHandle);
    return session;
}

/** The same for a session that is on @p display. */
Session* FindSession(Call& call, PicDisplay display, PicSession handle)
{
    Session* const session = FindSession(call, handle);
    if (session && (display == 0 || session->display != display)) {
        call.Reject(Torv::WrongDisplay);
        return 0;
    }
    return session;
}

Layer* FindLayer(Call& call, PicDisplay display, PicSession handle, int index)
{
    Session* const session = FindSession(call, display, handle);
    if (!session)
        return 0;
    Layer* const layer = session->FindLayer(index);
    if (!layer)
        call.Reject(Torv::BadLayer);
    return layer;
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
    call.SetImage(image);
    call.flags = flags;
    call.SetEffect(effect);
    call.SetPlacement(placement);
    call.pixelWord = pixelWord;
    if (call.IsFaulted())
        return call.AnswerHandle(0);
    if (!IsCreationSane(type, image, flags, effect, placement)) {
        call.Reject(Torv::BadArgument);
        return call.AnswerHandle(0);
    }

    Session* const session = Store().Create();
    if (!session) {
        call.Refuse();
        return call.AnswerHandle(0);
    }
    session->type = type;
    session->effect = *effect;
    session->placement = *placement;

    const int width = image->bits ? image->width : 0;
    if (Store().AddLayer(session, NewLayer(width, image->height, image->bytesPerLine, pixelWord)) <
        0) {
        Store().Free(session);
        call.Refuse();
        return call.AnswerHandle(0);
    }
    const Layer& base = *session->layers[0];
    for (int buffer = 0; buffer < 2 && !base.IsEmpty(); ++buffer)
        std::memcpy(base.memory.Buffer(buffer), image->bits, size_t(base.BufferBytes()));
    return call.AnswerHandle(session->handle);
}

int AddPictureSession(PicDisplay display, PicSession session, int reserved)
{
    Call call(Torv::OpAddPictureSession);
    call.display = display;
    call.session = session;
    call.reserved = reserved;
    Session* const found = FindSession(call, session);
    if (!found)
        return call.Answer(-1);
    if (found->display != 0 || !Store().HasDisplay(display)) {
        call.Reject(Torv::WrongDisplay);
        return call.Answer(-1);
    }
    Store().Show(found, display, Torv::Now());
    return call.Answer(0);
}

int PicAppendImageLayer(PicDisplay display, PicSession session, int width, int height,
                        int bytesPerLine, unsigned int pixelWord)
{
    Call call(Torv::OpPicAppendImageLayer);
    call.display = display;
    call.session = session;
    call.width = width;
    call.height = height;
    call.bytesPerLine = bytesPerLine;
    call.pixelWord = pixelWord;
    Session* const found = FindSession(call, display, session);
    if (!found)
        return call.Answer(-1);
    if (!AreRowsSane(width, height, bytesPerLine, found->BytesPerPixel())) {
        call.Reject(Torv::BadArgument);
        return call.Answer(-1);
    }
    const int index = Store().AddLayer(found, NewLayer(width, height, bytesPerLine, pixelWord));
    if (index < 0)
        call.Refuse();
    return call.Answer(index);
}

char* GetPicImageLayerPtr(PicDisplay display, PicSession session, int layer, int mode)
{
    Call call(Torv::OpGetPicImageLayerPtr);
    call.display = display;
    call.session = session;
    call.layer = layer;
    call.mode = mode;
    const Layer* const found = FindLayer(call, display, session, layer);
    if (!found)
        return call.AnswerBuffer(0, 0);
    if (mode != ForWriting) {
        call.Reject(Torv::BadArgument);
        return call.AnswerBuffer(0, 0);
    }
    return call.AnswerBuffer(found->Back(), found->BackIndex());
}

char* SwapPicImageLayerPtr(PicDisplay display, PicSession session, int layer)
{
    Call call(Torv::OpSwapPicImageLayerPtr);
    call.display = display;
    call.session = session;
    call.layer = layer;
    Layer* const found = FindLayer(call, display, session, layer);
    if (!found)
        return call.AnswerBuffer(0, 0);
    found->Swap();
    return call.AnswerBuffer(found->Back(), found->BackIndex());
}

int SetPicLayerBlend(PicDisplay display, PicSession session, int layer, int value)
{
    Call call(Torv::OpSetPicLayerBlend);
    call.display = display;
    call.session = session;
    call.layer = layer;
    call.value = value;
    Layer* const found = FindLayer(call, display, session, layer);
    if (!found)
        return call.Answer(-1);
    if (value < 0 || value > 2) {
        call.Reject(Torv::BadArgument);
        return call.Answer(-1);
    }
    found->blend = value;
    return call.Answer(0);
}

int RemovePictureSession(PicDisplay display, PicSession session)
{
    Call call(Torv::OpRemovePictureSession);
    call.display = display;
    call.session = session;
    Session* const found = FindSession(call, display, session);
    if (!found)
        return call.Answer(-1);
    Store().Hide(found);
    return call.Answer(0);
}

int FreePictureSession(PicSession session)
{
    Call call(Torv::OpFreePictureSession);
    call.session = session;
    if (call.IsFaulted()) {
        // The caller cannot free it again, so the session is freed whatever this returns.
        if (Session* const found = Store().Find(session))
            Store().Free(found);
        return call.Answer(-1);
    }
    Session* const found = FindSession(call, session);
    if (!found)
        return call.Answer(-1);
    Store().Free(found);
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
        return call.Answer(0);

    const double tick = 66.0; // milliseconds
    const double speed = double(speedIndex) + 1;
    const double duration = speed < 5 ? length * tick * (6 - speed) : length / (speed - 4) * tick;
    return call.Answer(int(qBound(0.0, duration, double(INT_MAX))));
}
