#include "display.h"

#include "call.h"
#include "sessionstore.h"

namespace Torv {

namespace {

Clock clock = 0;
void* clockContext = 0;

const Layer* FindLayer(PicSession session, int layer)
{
    const Session* const found = SessionStore::Instance().Find(session);
    return found ? found->FindLayer(layer) : 0;
}

} // namespace

void SetClock(Clock newClock, void* context)
{
    clock = newClock;
    clockContext = context;
}

qint64 Now()
{
    return clock ? clock(clockContext) : 0;
}

void GuardShownBuffers(bool guard)
{
    guardShownBuffers = guard;
}

Display::Display(const QSize& size)
    : handle(SessionStore::Instance().AddDisplay())
    , size(size)
{
}

Display::~Display()
{
    SessionStore::Instance().RemoveDisplay(handle);
}

QList<PicSession> Display::Sessions() const
{
    QList<PicSession> handles;
    const QList<Session*> sessions = SessionStore::Instance().OnDisplay(handle);
    for (int i = 0; i < sessions.size(); ++i)
        handles.append(sessions.at(i)->handle);
    return handles;
}

int LayerCount(PicSession session)
{
    const Session* const found = SessionStore::Instance().Find(session);
    return found ? int(found->layers.size()) : 0;
}

qint64 SwapCount(PicSession session, int layer)
{
    const Layer* const found = FindLayer(session, layer);
    return found ? found->swaps : 0;
}

QImage FrontImage(PicSession session, int layer)
{
    const Layer* const found = FindLayer(session, layer);
    if (!found || found->IsEmpty())
        return QImage();
    const QImage::Format format = SessionStore::Instance().Find(session)->type == 3
                                      ? QImage::Format_ARGB32
                                      : QImage::Format_RGB888;
    return QImage(reinterpret_cast<const uchar*>(found->Shown()), found->width, found->height,
                  found->bytesPerLine, format)
        .copy();
}

} // namespace Torv
