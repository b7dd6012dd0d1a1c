#include "io/TemporaryFileGuard.h"

#include "io/SignalHold.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstring>
#include <mutex>

#include <unistd.h>

namespace vorlane {

namespace {

// The paths live in fixed storage, so that the signal handler reads them without allocating.
constexpr int SlotCount = 64;
constexpr std::size_t PathRoom = 4096;

struct Slot
{
    std::atomic<bool> used{false};
    char path[PathRoom];
};

std::array<Slot, SlotCount> g_slots;

constexpr std::array<int, 4> EndingSignals{SIGTERM, SIGHUP, SIGINT, SIGQUIT};

std::mutex g_mutex; // guards the counters and the handler changes below
int g_guards = 0;
std::array<struct sigaction, EndingSignals.size()> g_previous{};
std::array<bool, EndingSignals.size()> g_installed{};
struct sigaction g_previousFileSize
{
};
bool g_fileSizeIgnored = false;

extern "C" void removeTemporaryFiles(int signal)
{
    // Steps under way in another thread (a file replaced, its backups moved on) end first,
    // so that what is removed here never holds the only copy of a version.
    SignalHold::waitForRelease();
    for (Slot &slot : g_slots) {
        if (slot.used.load())
            ::unlink(slot.path);
    }
    // The signal ends the program as it would have without us; it is blocked in this handler
    // and is delivered again on return.
    for (std::size_t i = 0; i < EndingSignals.size(); ++i) {
        if (EndingSignals[i] == signal)
            ::sigaction(signal, &g_previous[i], nullptr);
    }
    ::raise(signal);
}

void installHandlers()
{
    for (std::size_t i = 0; i < EndingSignals.size(); ++i) {
        struct sigaction current
        {
        };
        ::sigaction(EndingSignals[i], nullptr, &current);
        if (current.sa_handler != SIG_DFL || (current.sa_flags & SA_SIGINFO))
            continue; // the program handles or ignores it itself
        struct sigaction action
        {
        };
        action.sa_handler = removeTemporaryFiles;
        sigemptyset(&action.sa_mask);
        g_installed[i] = ::sigaction(EndingSignals[i], &action, &g_previous[i]) == 0;
    }
    struct sigaction ignore
    {
    };
    ignore.sa_handler = SIG_IGN;
    sigemptyset(&ignore.sa_mask);
    struct sigaction current
    {
    };
    ::sigaction(SIGXFSZ, nullptr, &current);
    if (current.sa_handler == SIG_DFL && !(current.sa_flags & SA_SIGINFO))
        g_fileSizeIgnored = ::sigaction(SIGXFSZ, &ignore, &g_previousFileSize) == 0;
}

void restoreHandlers()
{
    for (std::size_t i = 0; i < EndingSignals.size(); ++i) {
        if (g_installed[i])
            ::sigaction(EndingSignals[i], &g_previous[i], nullptr);
        g_installed[i] = false;
    }
    if (g_fileSizeIgnored)
        ::sigaction(SIGXFSZ, &g_previousFileSize, nullptr);
    g_fileSizeIgnored = false;
}

} // namespace

TemporaryFileGuard::TemporaryFileGuard(const std::string &path)
{
    std::lock_guard lock(g_mutex);
    if (g_guards++ == 0)
        installHandlers();
    if (path.size() >= PathRoom)
        return; // too long to keep: such a file is not removed on a signal
    for (int i = 0; i < SlotCount; ++i) {
        Slot &slot = g_slots[static_cast<std::size_t>(i)];
        if (slot.used.load())
            continue;
        std::memcpy(slot.path, path.c_str(), path.size() + 1);
        slot.used.store(true);
        m_slot = i;
        return;
    }
}

TemporaryFileGuard::~TemporaryFileGuard()
{
    release();
    std::lock_guard lock(g_mutex);
    if (--g_guards == 0)
        restoreHandlers();
}

void TemporaryFileGuard::release()
{
    if (m_slot < 0)
        return;
    std::lock_guard lock(g_mutex);
    g_slots[static_cast<std::size_t>(m_slot)].used.store(false);
    m_slot = -1;
}

} // namespace vorlane
