// Counters of calls, misuse and live objects, and faults on demand.

#include "call.h"
#include "sessionstore.h"

#include <QStringList>

namespace Torv {

namespace {

const char* const operationNames[OperationCount] = {
    "CreatePictureSession", "AddPictureSession",    "PicAppendImageLayer",
    "GetPicImageLayerPtr",  "SwapPicImageLayerPtr", "SetPicLayerBlend",
    "RemovePictureSession", "FreePictureSession",   "GeteffectDuration"};

int failingCall[OperationCount]; // calls until it fails; 0 none
bool failingAll[OperationCount];

} // namespace

const char* OperationName(Operation operation)
{
    return operationNames[operation];
}

Accounting& Counters()
{
    static Accounting counters = Accounting();
    return counters;
}

Accounting Accounts()
{
    const SessionStore& store = SessionStore::Instance();
    Accounting accounts = Counters();
    accounts.liveSessions = store.LiveSessions();
    accounts.liveLayers = store.LiveLayers();
    accounts.liveBytes = store.LiveBytes();
    accounts.peakBytes = store.PeakBytes();
    return accounts;
}

void ResetAccounts()
{
    Counters() = Accounting();
    SessionStore::Instance().ResetPeak();
}

QString AccountsReport()
{
    const Accounting accounts = Accounts();
    QStringList lines;
    lines << QString::fromLatin1("live      %1 sessions, %2 layers, %3 bytes (at most %4)")
                 .arg(accounts.liveSessions)
                 .arg(accounts.liveLayers)
                 .arg(accounts.liveBytes)
                 .arg(accounts.peakBytes);
    for (int i = 0; i < OperationCount; ++i) {
        if (accounts.calls[i] > 0) {
            lines << QString::fromLatin1("calls     %1 %2")
                         .arg(QLatin1String(operationNames[i]), -21)
                         .arg(accounts.calls[i]);
        }
    }
    lines << QString::fromLatin1("misuses   zero handle %1, stale handle %2, wrong display %3, "
                                 "bad layer %4, bad argument %5")
                 .arg(accounts.zeroHandle)
                 .arg(accounts.staleHandle)
                 .arg(accounts.wrongDisplay)
                 .arg(accounts.badLayer)
                 .arg(accounts.badArgument);
    lines << QString::fromLatin1("failures  on demand %1, refused as too large %2")
                 .arg(accounts.injectedFaults)
                 .arg(accounts.refused);
    return lines.join(QLatin1String("\n"));
}

void FailCall(Operation operation, int nth)
{
    failingCall[operation] = qMax(0, nth);
}

void FailAllCalls(Operation operation, bool fail)
{
    failingAll[operation] = fail;
}

void ClearFaults()
{
    for (int i = 0; i < OperationCount; ++i) {
        failingCall[i] = 0;
        failingAll[i] = false;
    }
}

bool TakeFault(Operation operation)
{
    const bool due = failingCall[operation] > 0 && --failingCall[operation] == 0;
    return due || failingAll[operation];
}

} // namespace Torv
