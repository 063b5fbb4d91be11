/**
 * @file
 * What happens around every call of the service: it is counted, it may be made to fail, and it is
 * logged once it has been answered.
 */
#ifndef TORV_CALL_H
#define TORV_CALL_H

#include "display.h"

namespace Torv {

/** What a caller can do wrong; each has its counter. */
enum Misuse { ZeroHandle, StaleHandle, WrongDisplay, BadLayer, BadArgument };

class Call
{
public:
    explicit Call(Operation operation);

    /** Adds an argument to the log line. */
    Call& With(const char* name, qint64 value);
    Call& WithPixelWord(unsigned int word);
    /** Records; "null" is logged for none. */
    Call& With(const Effect* effect);
    Call& With(const PicImage* image);
    Call& With(const PicPlacement* placement);

    /** The call shall fail for no fault of the caller's. */
    bool IsFaulted() const { return faulted; }

    /** Counts a mistake of the caller's. */
    void Reject(Misuse misuse);
    /** Counts a request for more than there is. */
    void Refuse();

    /** Each logs the call and answers its first argument. */
    int Answer(int result);
    PicSession AnswerHandle(PicSession result);
    /** @param index which of the layer's two buffers it is */
    char* AnswerBuffer(char* buffer, int index);

private:
    void AddArgument(const char* name, const QString& json);
    void Log(const QString& result) const;

    Operation operation;
    bool faulted;
    const char* problem; ///< why the call came to nothing; null while it did not
    QString arguments;
};

/** The counters of calls and misuses; those of live sessions stay 0. */
Accounting& Counters();

/** Whether this call shall fail on demand. */
bool TakeFault(Operation operation);

} // namespace Torv

#endif
