/**
 * @file
 * The control side of the emulated picture-layer service: makes displays, reads what they show,
 * counts calls and makes them fail. The plugin never sees it.
 */
#ifndef TORV_DISPLAY_H
#define TORV_DISPLAY_H

#include "torvsdk.h"

#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

namespace Torv {

/** The nine calls of the service, in the order of torvsdk.h. */
enum Operation {
    OpCreatePictureSession,
    OpAddPictureSession,
    OpPicAppendImageLayer,
    OpGetPicImageLayerPtr,
    OpSwapPicImageLayerPtr,
    OpSetPicLayerBlend,
    OpRemovePictureSession,
    OpFreePictureSession,
    OpGeteffectDuration,
    OperationCount
};

/** The name of the SDK function. */
const char* OperationName(Operation operation);

/** Live objects and misuse; see Accounts(). */
struct Accounting
{
    int liveSessions; ///< created and not freed
    int liveLayers;   ///< of all live sessions
    qint64 liveBytes; ///< of all live layers, both buffers
    qint64 peakBytes; ///< the most that liveBytes has been since ResetAccounts()
    qint64 calls[OperationCount];
    qint64 zeroHandle;     ///< calls with session 0
    qint64 staleHandle;    ///< calls with a session that was freed or never made
    qint64 wrongDisplay;   ///< calls with a display that the session is not on
    qint64 badLayer;       ///< calls with a layer that the session does not have
    qint64 badArgument;    ///< null records, sizes that do not fit together, unknown modes
    qint64 injectedFaults; ///< calls that failed on demand
    qint64 refused;        ///< sessions and layers that were too many or too large

    /** The sum of the misuse counters; injected faults are none. */
    qint64 Misuses() const
    {
        return zeroHandle + staleHandle + wrongDisplay + badLayer + badArgument;
    }
};

Accounting Accounts();

/** Zeroes every counter; live sessions, layers and bytes stay as they are. */
void ResetAccounts();

/** A few lines to read: live objects, calls, misuse. */
QString AccountsReport();

/**
 * Lets the @p nth call (1 is the next one) of @p operation fail once; 0 cancels the fault.
 * A call that fails on demand returns 0, -1 or null and has no effect. The exception is
 * FreePictureSession(), which frees the session anyway, because its caller cannot try again.
 */
void FailCall(Operation operation, int nth);

/** Makes every call of @p operation fail, or stops that. */
void FailAllCalls(Operation operation, bool fail);

/** Cancels all faults. */
void ClearFaults();

/** One call of the service and what became of it. */
struct CallRecord
{
    explicit CallRecord(Operation operation)
        : operation(operation)
    {
    }

    Operation operation;

    // The arguments by their names in torvsdk.h; what the operation does not take is 0.
    PicDisplay display = 0;
    PicSession session = 0;
    int reserved = 0;
    int layer = 0;
    int mode = 0;
    int value = 0;
    int type = 0;
    int flags = 0;
    int width = 0;
    int height = 0;
    int bytesPerLine = 0;
    unsigned int pixelWord = 0;
    int length = 0;
    int areaHeight = 0;
    int effectCode = 0;
    int speedIndex = 0;
    bool hasImage = false; ///< the records are copies, and there is none where null was given
    bool hasEffect = false;
    bool hasPlacement = false;
    PicImage image = PicImage(); ///< its bits may be gone when the call has ended
    Effect effect = Effect();
    PicPlacement placement = PicPlacement();

    qint64 result = 0; ///< what it returned; for a buffer 0 or 1, or -1 for null
    /**
     * Why the call had no effect: "fault" (on demand), "refused" (too large) or the counter of
     * the misuse; null when it had one.
     */
    const char* problem = 0;
};

/** Called for every call when it returns. */
typedef void (*CallLog)(void* context, const CallRecord& call);

/** Sends every call to @p log (null: none). */
void SetCallLog(CallLog log, void* context);

/** The display's time in milliseconds. */
typedef qint64 (*Clock)(void* context);

/** The clock for the start of scrolling; null: always 0. */
void SetClock(Clock clock, void* context);

/** The time of that clock. */
qint64 Now();

/**
 * From now on, a buffer that is shown after a swap is read-only: a painter that writes into the
 * picture on the screen stops the process. Off by default.
 */
void GuardShownBuffers(bool guard);

/** One emulated display output. Not copyable; its sessions outlive it but are no longer shown. */
class Display
{
public:
    /** @param size in pixels */
    explicit Display(const QSize& size);
    ~Display();

    /** What a renderer is started with; never 0. */
    PicDisplay Handle() const { return handle; }
    QSize Size() const { return size; }

    /** The sessions on this display, in the order in which they are stacked, lowest first. */
    QList<PicSession> Sessions() const;

    /**
     * What the display shows at @p milliseconds of its clock: QImage::Format_ARGB32, transparent
     * where nothing is shown. A pure function of the shown buffers and the time.
     */
    QImage Compose(qint64 milliseconds) const;

private:
    Display(const Display&);
    Display& operator=(const Display&);

    PicDisplay handle;
    QSize size;
};

/** The number of layers; 0 for a session that is not live. */
int LayerCount(PicSession session);

/** How often the layer has been swapped; 0 when there is no such layer. */
qint64 SwapCount(PicSession session, int layer);

/**
 * A deep copy of what the layer shows: QImage::Format_ARGB32 in sessions of type 3, Format_RGB888
 * in those of type 5; null when there is no such layer or it is empty.
 */
QImage FrontImage(PicSession session, int layer);

} // namespace Torv

#endif
