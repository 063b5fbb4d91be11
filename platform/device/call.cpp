#include "call.h"

namespace Torv {

namespace {

CallLog callLog = 0;
void* callLogContext = 0;

} // namespace

const Misuse ZeroHandle = {"zeroHandle", &Accounting::zeroHandle};
const Misuse StaleHandle = {"staleHandle", &Accounting::staleHandle};
const Misuse WrongDisplay = {"wrongDisplay", &Accounting::wrongDisplay};
const Misuse BadLayer = {"badLayer", &Accounting::badLayer};
const Misuse BadArgument = {"badArgument", &Accounting::badArgument};

void SetCallLog(CallLog log, void* context)
{
    callLog = log;
    callLogContext = context;
}

Call::Call(Operation operation, PicDisplay givenDisplay, PicSession givenSession)
    : CallRecord(operation)
    , faulted(TakeFault(operation))
{
    display = givenDisplay;
    session = givenSession;
    result = operation == OpCreatePictureSession || operation == OpGeteffectDuration ? 0 : -1;
    ++Counters().calls[operation];
    if (faulted) {
        ++Counters().injectedFaults;
        problem = "fault";
    }
}

void Call::Reject(const Misuse& misuse)
{
    ++(Counters().*misuse.counter);
    problem = misuse.name;
}

void Call::Refuse()
{
    ++Counters().refused;
    problem = "refused";
}

Call::~Call()
{
    if (callLog)
        callLog(callLogContext, *this);
}

} // namespace Torv
