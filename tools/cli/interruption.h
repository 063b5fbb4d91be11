/**
 * @file
 * Requests to end the program: SIGINT (Ctrl+C), SIGTERM and SIGHUP (a closed terminal).
 */
#pragma once

namespace AnimText::cli {

/**
 * From now on such a signal ends the program at once with the status 128 + signal: 130 after
 * Ctrl+C, 143 after SIGTERM.
 */
void EndAtInterruption();

/**
 * From now on the first signal only sets Interrupted(), so that the program can clean up. A second
 * one still ends it at once.
 */
void WatchForInterruption();
bool Interrupted();

/** Throws Failure after a signal. */
void StopIfInterrupted();

/** The exit status after a signal; 0 without one. */
int InterruptionStatus();

} // namespace AnimText::cli
