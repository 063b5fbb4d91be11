/**
 * @file
 * The wish that the program ends: Ctrl+C, a termination, a terminal that is closed.
 */
#ifndef ANIMTEXT_INTERRUPTION_H
#define ANIMTEXT_INTERRUPTION_H

namespace AnimText {

/**
 * From now on the program ends at once at such a wish, with 128 and the signal's number as its
 * status: 130 after Ctrl+C, 143 when terminated.
 */
void EndAtInterruption();

/**
 * From now on it goes on, so that it can tidy up: the wish is what Interrupted() tells. A second
 * one still ends it at once.
 */
void WatchForInterruption();
bool Interrupted();

/** Throws Failure when the wish is there. */
void StopIfInterrupted();

/** The exit status after the wish; 0 without one. */
int InterruptionStatus();

} // namespace AnimText

#endif
