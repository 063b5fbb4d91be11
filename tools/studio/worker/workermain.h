/**
 * @file
 * The worker process.
 */
#pragma once

namespace AnimText::studio::worker {

/** Runs a worker with an optional argument --plugin FILE. @return the exit status */
int WorkerMain(int argc, char** argv);

} // namespace AnimText::studio::worker
