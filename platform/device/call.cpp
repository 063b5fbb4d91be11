#include "call.h"

namespace Torv {

namespace {

CallLog callLog = 0;
void* callLogContext = 0;

qint64& CounterOf(Misuse misuse)
{
    switch (misuse) {
    case ZeroHandle: return Counters().zeroHandle;
    case StaleHandle: return Counters().staleHandle;
    case WrongDisplay: return Counters().wrongDisplay;
    case BadLayer: return Counters().badLayer;
    case BadArgument: break;
    }
    return Counters().badArgument;
}

const char* NameOf(Misuse misuse)
{
    switch (misuse) {
    case ZeroHandle: return "zeroHandle";
    case StaleHandle: return "staleHandle";
    case WrongDisplay: return "wrongDisplay";
    case BadLayer: return "badLayer";
    case BadArgument: break;
    }
    return "badArgument";
}

} // namespace

void SetCallLog(CallLog log, void* context)
{
    callLog = log;
    callLogContext = context;
}

Call::Call(Operation operation)
    : CallRecord(operation)
    , faulted(TakeFault(operation))
{
    ++Counters().calls[operation];
    if (faulted) {
        ++Counters().injectedFaults;
        problem = "fault";
    }
}

void Call::SetImage(const PicImage* given)
{
    hasImage = given;
    image = given ? *given : PicImage();
}

void Call::SetEffect(const Effect* given)
{
    hasEffect = given;
    effect = given ? *given : Effect();
}

void Call::SetPlacement(const PicPlacement* given)
{
    hasPlacement = given;
    placement = given ? *given : PicPlacement();
}

void Call::Reject(Misuse misuse)
{
    ++CounterOf(misuse);
    problem = NameOf(misuse);
}

void Call::Refuse()
{
    ++Counters().refused;
    problem = "refused";
}

int Call::Answer(int answer)
{
    result = answer;
    Log();
    return answer;
}

PicSession Call::AnswerHandle(PicSession answer)
{
    result = answer;
    Log();
    return answer;
}

char* Call::AnswerBuffer(char* buffer, int index)
{
    // The index of the buffer; addresses differ from run to run.
    result = buffer ? index : -1;
    Log();
    return buffer;
}

void Call::Log() const
{
    if (callLog)
        callLog(callLogContext, *this);
}

} // namespace Torv
