/**
 * @file
 * The worker process.
 */
#ifndef ANIMTEXT_WORKERMAIN_H
#define ANIMTEXT_WORKERMAIN_H

namespace AnimText::studio::worker {

/** Runs a worker with an optional argument --plugin FILE. @return the exit status */
int WorkerMain(int argc, char** argv);

} // namespace AnimText::studio::worker

#endif
