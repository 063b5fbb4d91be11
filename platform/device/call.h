/**
 * @file
 * What happens around every call of the service: it is counted, may fail on demand, and is logged
 * when it returns.
 */
#ifndef TORV_CALL_H
#define TORV_CALL_H

#include "display.h"

namespace Torv {

/** What a caller can do wrong. */
struct Misuse
{
    const char* name; ///< of its counter
    qint64 Accounting::*counter;
};
extern const Misuse ZeroHandle, StaleHandle, WrongDisplay, BadLayer, BadArgument;

class Call : public CallRecord
{
public:
    explicit Call(Operation operation, PicDisplay display = 0, PicSession session = 0);
    /** Logs the call with its answer, which is that of a failure until one is set. */
    ~Call();

    /** Whether the call fails on demand. */
    bool IsFaulted() const { return faulted; }

    /** Counts a mistake of the caller's. */
    void Reject(const Misuse& misuse);
    /** Counts a request for more than there is. */
    void Refuse();

    /** Sets and returns what the call returns. */
    template <typename T>
    T Answer(T answer)
    {
        result = answer;
        return answer;
    }

private:
    bool faulted;
};

/** The counters of calls and misuses; those of live sessions stay 0. */
Accounting& Counters();

/** Whether this call fails on demand. */
bool TakeFault(Operation operation);

} // namespace Torv

#endif
