#include "interrupt.h"

#include "common/error.h"

#include <csignal>

namespace wav {
namespace {

volatile std::sig_atomic_t interrupted = 0;

} // namespace

void catchInterrupts()
{
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) std::signal(signal, [](int) { interrupted = 1; });
}

void stopIfInterrupted()
{
    if (interrupted) throw example::Error("interrupted");
}

} // namespace wav
