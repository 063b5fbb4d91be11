/**
 * @file
 * What happens around every call of the service: it is counted, may fail on demand, and is logged
 * when it returns.
 */
#ifndef TORV_CALL_H
#define TORV_CALL_H

#include "display.h"

namespace Torv {

/** What a caller can do wrong; each has its counter. */
enum Misuse { ZeroHandle, StaleHandle, WrongDisplay, BadLayer, BadArgument };

class Call : public CallRecord
{
public:
    explicit Call(Operation operation);

    /** The records among the arguments; each may be null. */
    void SetImage(const PicImage* given);
    void SetEffect(const Effect* given);
    void SetPlacement(const PicPlacement* given);

    /** Whether the call fails on demand. */
    bool IsFaulted() const { return faulted; }

    /** Counts a mistake of the caller's. */
    void Reject(Misuse misuse);
    /** Counts a request for more than there is. */
    void Refuse();

    /** Each logs the call and returns its first argument. */
    int Answer(int answer);
    PicSession AnswerHandle(PicSession answer);
    /** @param index which of the layer's two buffers it is */
    char* AnswerBuffer(char* buffer, int index);

private:
    void Log() const;

    bool faulted;
};

/** The counters of calls and misuses; those of live sessions stay 0. */
Accounting& Counters();

/** Whether this call fails on demand. */
bool TakeFault(Operation operation);

} // namespace Torv

#endif
