/**
 * @file
 * What the service holds: sessions, their layers, and which display they are on.
 */
#ifndef TORV_SESSIONSTORE_H
#define TORV_SESSIONSTORE_H

#include "layermemory.h"
#include "torvsdk.h"

#include <QList>

#include <memory>
#include <vector>

namespace Torv {

/** The layer's two buffers: one is shown, the other painted. */
struct Layer
{
    Layer(int width, int height, int bytesPerLine, unsigned int pixelWord);

    /** @return false when the layer is too large */
    bool Allocate();
    void Swap();

    bool IsEmpty() const { return width == 0 || height == 0; }
    qint64 BufferBytes() const { return qint64(bytesPerLine) * height; }
    int BackIndex() const { return 1 - front; }
    char* Back() const { return memory.Buffer(BackIndex()); }
    const char* Shown() const;

    int width;
    int height;
    int bytesPerLine;
    unsigned int colorKey; ///< 0xRRGGBB
    int blend = 0;
    int front = 0;
    qint64 swaps = 0;
    LayerMemory memory;
};

struct Session
{
    int BytesPerPixel() const { return type == 3 ? 4 : 3; }
    /** @return null when there is no such layer */
    Layer* FindLayer(int layer) const;

    PicSession handle;
    int type;
    Effect effect;
    PicPlacement placement;
    PicDisplay display; ///< 0 on none
    qint64 addedAt;     ///< milliseconds of the clock
    std::vector<std::unique_ptr<Layer>> layers;
};

/**
 * All live sessions and displays. A session's handle holds its slot and how often the slot
 * has been used, so the handle of a freed session finds nothing.
 */
class SessionStore
{
public:
    /** The one store of the process. */
    static SessionStore& Instance();

    /** A session without layers; null when there are too many. */
    Session* Create();
    /** @return null when the handle is of no live session */
    Session* Find(PicSession handle) const;
    /** Adds a layer on top. @return its index, or -1 when there is no memory for it */
    int AddLayer(Session* session, std::unique_ptr<Layer> layer);
    void Free(Session* session);

    void Show(Session* session, PicDisplay display, qint64 now);
    void Hide(Session* session);
    /** In the order in which they were shown. */
    QList<Session*> OnDisplay(PicDisplay display) const;

    int LiveSessions() const { return int(slotTable.size() - freeSlots.size()); }
    int LiveLayers() const { return liveLayers; }
    /** Of all layers, both buffers. */
    qint64 LiveBytes() const { return liveBytes; }
    qint64 PeakBytes() const { return peakBytes; }
    void ResetPeak() { peakBytes = liveBytes; }

    PicDisplay AddDisplay();
    void RemoveDisplay(PicDisplay display);
    bool HasDisplay(PicDisplay display) const { return displays.contains(display); }

private:
    struct Slot
    {
        unsigned int generation = 0;
        std::unique_ptr<Session> session;
    };

    SessionStore() {}

    std::vector<Slot> slotTable;
    std::vector<unsigned int> freeSlots;
    QList<Session*> shown;
    QList<PicDisplay> displays;
    PicDisplay lastDisplay = 0;
    int liveLayers = 0;
    qint64 liveBytes = 0;
    qint64 peakBytes = 0;
};

/** Whether Swap() write-protects what it shows; see GuardShownBuffers(). */
extern bool guardShownBuffers;

} // namespace Torv

#endif
