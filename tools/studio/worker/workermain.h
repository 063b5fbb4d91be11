/**
 * @file
 * The worker process from its beginning to its end.
 */
#ifndef ANIMTEXT_WORKERMAIN_H
#define ANIMTEXT_WORKERMAIN_H

namespace AnimText {

/** Runs a worker; its words may name a library with --plugin FILE. @return the exit status */
int WorkerMain(int argc, char** argv);

} // namespace AnimText

#endif
