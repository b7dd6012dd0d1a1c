#include "io/SignalHold.h"

#include <atomic>
#include <csignal>

#include <poll.h>
#include <pthread.h>
#include <unistd.h>

namespace vorlane {

namespace {

std::atomic<int> g_holds{0};
std::atomic<bool> g_ending{false}; // a handler has begun to end the program

// Set once per thread: a hold inside a hold keeps the outer one's mask.
thread_local int t_depth = 0;
thread_local sigset_t t_previous;

} // namespace

SignalHold::SignalHold()
{
    if (t_depth++ == 0) {
        sigset_t ending;
        sigemptyset(&ending);
        for (const int signal : {SIGTERM, SIGHUP, SIGINT, SIGQUIT})
            sigaddset(&ending, signal);
        pthread_sigmask(SIG_BLOCK, &ending, &t_previous);
    }
    g_holds.fetch_add(1);
    // The program is being ended by a handler in another thread, which may already have
    // removed the files these steps would use: they never start, and the end comes here.
    if (g_ending.load()) {
        g_holds.fetch_sub(1);
        for (;;)
            ::pause();
    }
}

SignalHold::~SignalHold()
{
    g_holds.fetch_sub(1);
    // A signal that came meanwhile is delivered here, with the steps done.
    if (--t_depth == 0)
        pthread_sigmask(SIG_SETMASK, &t_previous, nullptr);
}

void SignalHold::waitForRelease()
{
    g_ending.store(true);
    while (g_holds.load() > 0)
        ::poll(nullptr, 0, 1); // sleeps a millisecond; allowed in a signal handler
}

} // namespace vorlane
