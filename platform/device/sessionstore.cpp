#include "sessionstore.h"

namespace Torv {

namespace {

// A handle is the generation above the slot. Generations begin at 1, so every session handle is
// larger than any display handle, and a mix-up is noticed.
const unsigned int SlotBits = 12;
const unsigned int SlotCount = 1u << SlotBits;
const unsigned int LastGeneration = (1u << (32 - SlotBits)) - 1;

const size_t MostLayers = 16;                   // of one session
const qint64 LargestBuffer = qint64(256) << 20; // bytes; far beyond any display

} // namespace

bool guardShownBuffers = false;

Layer::Layer(int width, int height, int bytesPerLine, unsigned int pixelWord)
    : width(width)
    , height(height)
    , bytesPerLine(bytesPerLine)
    , colorKey(pixelWord & 0xFFFFFF)
{
}

bool Layer::Allocate()
{
    return BufferBytes() == 0 || (BufferBytes() <= LargestBuffer && memory.Allocate(BufferBytes()));
}

void Layer::Swap()
{
    front = BackIndex();
    ++swaps;
    if (guardShownBuffers) {
        memory.Protect(BackIndex(), false);
        memory.Protect(front, true);
    }
}

const char* Layer::Shown() const
{
    // A layer that is painted once and never swapped is visible, too.
    return swaps == 0 ? Back() : memory.Buffer(front);
}

Layer* Session::FindLayer(int layer) const
{
    return layer >= 0 && layer < int(layers.size()) ? layers[size_t(layer)].get() : 0;
}

SessionStore& SessionStore::Instance()
{
    // Never destroyed: renderers with static lifetime free their sessions at exit.
    static SessionStore* const store = new SessionStore;
    return *store;
}

Session* SessionStore::Create()
{
    if (freeSlots.empty()) {
        if (slotTable.size() == SlotCount)
            return 0;
        freeSlots.push_back(unsigned(slotTable.size()));
        slotTable.push_back(Slot());
    }
    const unsigned int index = freeSlots.back();
    freeSlots.pop_back();

    Slot& slot = slotTable[index];
    slot.generation = slot.generation == LastGeneration ? 1 : slot.generation + 1;
    slot.session.reset(new Session());
    slot.session->handle = slot.generation << SlotBits | index;
    return slot.session.get();
}

Session* SessionStore::Find(PicSession handle) const
{
    const size_t index = handle % SlotCount;
    if (index >= slotTable.size())
        return 0;
    Session* const session = slotTable[index].session.get();
    return session && session->handle == handle ? session : 0;
}

int SessionStore::AddLayer(Session* session, std::unique_ptr<Layer> layer)
{
    if (session->layers.size() == MostLayers || !layer->Allocate())
        return -1;
    ++liveLayers;
    liveBytes += 2 * layer->BufferBytes();
    peakBytes = qMax(peakBytes, liveBytes);
    session->layers.push_back(std::move(layer));
    return int(session->layers.size()) - 1;
}

void SessionStore::Free(Session* session)
{
    Hide(session);
    for (size_t i = 0; i < session->layers.size(); ++i) {
        --liveLayers;
        liveBytes -= 2 * session->layers[i]->BufferBytes();
    }
    const unsigned int index = session->handle % SlotCount;
    slotTable[index].session.reset();
    freeSlots.push_back(index);
}

void SessionStore::Show(Session* session, PicDisplay display, qint64 now)
{
    session->display = display;
    session->addedAt = now;
    shown.append(session);
}

void SessionStore::Hide(Session* session)
{
    session->display = 0;
    shown.removeOne(session);
}

QList<Session*> SessionStore::OnDisplay(PicDisplay display) const
{
    QList<Session*> found;
    for (int i = 0; i < shown.size(); ++i) {
        if (shown.at(i)->display == display)
            found.append(shown.at(i));
    }
    return found;
}

PicDisplay SessionStore::AddDisplay()
{
    displays.append(++lastDisplay);
    return lastDisplay;
}

void SessionStore::RemoveDisplay(PicDisplay display)
{
    displays.removeOne(display);
}

} // namespace Torv
