#pragma once

namespace vorlane {

// Holds back the signals that end the program (SIGTERM, SIGHUP, SIGINT, SIGQUIT) while it
// lives, around steps that must run to their end once begun, such as replacing a file and
// moving its backups on: in this thread they are blocked and arrive when it ends; the handler
// of TemporaryFileGuard, run in another thread meanwhile, waits for it to end before it
// removes anything.
class SignalHold
{
public:
    SignalHold();
    ~SignalHold();
    SignalHold(const SignalHold &) = delete;
    SignalHold &operator=(const SignalHold &) = delete;

    // For a handler that ends the program: waits until no SignalHold lives in any thread,
    // and lets none begin any more (one that would waits for the end). Safe in a handler.
    static void waitForRelease();
};

} // namespace vorlane
