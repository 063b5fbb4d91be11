#include "cli/interruption.h"

#include "cli/output.h"

#include <csignal>

#include <unistd.h>

namespace AnimText::cli {

namespace {

volatile std::sig_atomic_t watching = 0;
volatile std::sig_atomic_t caught = 0; // the signal

void Interrupt(int signal)
{
    if (!watching || caught)
        _exit(128 + signal);
    caught = signal;
}

} // namespace

void EndAtInterruption()
{
    for (int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before = {};
        struct sigaction action = {};
        action.sa_handler = Interrupt;
        sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN) // as under nohup
            sigaction(signal, &action, nullptr);
    }
}

void WatchForInterruption()
{
    watching = 1;
}

bool Interrupted()
{
    return caught != 0;
}

void StopIfInterrupted()
{
    if (caught)
        throw files::Failure{files::FailedRun, "interrupted"};
}

int InterruptionStatus()
{
    return caught ? 128 + caught : 0;
}

} // namespace AnimText::cli
