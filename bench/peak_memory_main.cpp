// vorlane_peak_memory PROGRAM [ARGUMENTS...]: runs PROGRAM with its output discarded and prints
// "SECONDS MAX_RSS_KB EXIT_CODE". The benchmark measures processes through it: a child forked
// straight from the benchmark would count the benchmark's own memory in its peak, since the
// peak includes what the child held before it started PROGRAM.
#include <chrono>
#include <cstdio>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

int main(int argc, char **argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: vorlane_peak_memory PROGRAM [ARGUMENTS...]\n");
        return 2;
    }
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = ::fork();
    if (child < 0)
        return 1;
    if (child == 0) {
        const int null = ::open("/dev/null", O_WRONLY);
        ::dup2(null, STDOUT_FILENO);
        ::dup2(null, STDERR_FILENO);
        ::execv(argv[1], argv + 1);
        ::_exit(127);
    }
    int status = 0;
    rusage usage{};
    if (::wait4(child, &status, 0, &usage) != child)
        return 1;
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf(
        "%.6f %ld %d\n", seconds, usage.ru_maxrss, WIFEXITED(status) ? WEXITSTATUS(status) : -1);
    return 0;
}
