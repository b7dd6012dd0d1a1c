// vorlane_history_bench: measures the history on the largest project the tables allow: for
// each kind of step (an editor session on one button, on one animation of a sprite, on one
// scene, a settings dialog, Add, Remove, and New or Open, which replace the whole document)
// the time of the step's bounds, of its undo and of its redo, and the memory it holds; then
// 1,000 steps of each of the small kinds in a row, with the memory they hold together.
// Prints one line per kind: "KIND begin+end MS undo MS redo MS bytes N", the medians of
// --runs rounds (default 9), and the thousand-step lines. Each time is given as the time on
// the clock and, after the slash, the processor time of the thread, which other programs
// running on the machine do not stretch.
//
// Usage: vorlane_history_bench [--runs N]
#include "LargestProject.h"

#include "history/History.h"
#include "model/Kinds.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include <time.h>

namespace {

using namespace vorlane;
using Clock = std::chrono::steady_clock;

// The time on the clock and the processor time of this thread, in ms.
struct Stamp
{
    Clock::time_point wall;
    double cpu;
};

Stamp now()
{
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return {Clock::now(),
            static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6};
}

struct Span
{
    double wall;
    double cpu;
};

Span between(const Stamp &from, const Stamp &to)
{
    return {std::chrono::duration<double, std::milli>(to.wall - from.wall).count(),
            to.cpu - from.cpu};
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

Span median(const std::vector<Span> &spans)
{
    std::vector<double> wall, cpu;
    for (const Span &s : spans) {
        wall.push_back(s.wall);
        cpu.push_back(s.cpu);
    }
    return {median(wall), median(cpu)};
}

struct StepKind
{
    const char *name;
    // Changes the document as the step would; `round` makes each round's change its own.
    std::function<void(Document &, int round)> change;
};

std::vector<StepKind> stepKinds(const Document &largest)
{
    auto full = makeDocument();
    *full = largest;
    std::shared_ptr<Document> whole(std::move(full));
    return {
        {"button session",
         [](Document &d, int round) {
             ButtonRec &b = d.Buttons[50];
             b.x = static_cast<int16_t>(round + 1);
             b.id = "btnPlay" + std::to_string(round);
             d.list(Kind::Button).lines[49].text = b.id;
         }},
        {"animation session",
         [](Document &d, int round) {
             AnimRec &a = d.Sprites[100].anims[50];
             for (FrameRec &f : a.frames)
                 f.cell = static_cast<int16_t>(f.cell + round + 1);
             a.id = "walk" + std::to_string(round);
         }},
        {"scene session",
         [](Document &d, int round) {
             SceneRec &s = d.Scenes[50];
             for (LayerRec &l : s.layers)
                 l.objectKind = static_cast<int16_t>(round % 9 + 1);
         }},
        {"settings dialog",
         [](Document &d, int round) {
             d.AppSettings.windowCaption = "Caption " + std::to_string(round);
             d.AppSettings.CustomFilters[50].text = "filter " + std::to_string(round);
         }},
        {"add",
         [](Document &d, int round) {
             ObjectList &list = d.list(Kind::Image);
             list.lines.push_back({"New_Object" + std::to_string(round), 200});
             list.selected = static_cast<int>(list.lines.size()) - 1;
             ++d.newObjectCounter;
         }},
        {"remove",
         [](Document &d, int round) {
             // Every other round puts a line back, so that there is always one to remove.
             ObjectList &list = d.list(Kind::Text);
             if (round % 2 == 1) {
                 list.lines.push_back({"txtBack", 200});
                 d.Texts[200].inUse = -1;
                 ++d.objectCount(Kind::Text);
                 return;
             }
             d.Texts[static_cast<size_t>(list.lines.back().slot)].inUse = 0;
             list.lines.pop_back();
             --d.objectCount(Kind::Text);
         }},
        {"new (whole document)",
         [whole](Document &d, int round) {
             if (round % 2 == 0)
                 setUpNewProject(d, "Fresh");
             else
                 d = *whole;
         }},
    };
}

} // namespace

int main(int argc, char **argv)
{
    int runs = 9;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--runs") == 0 && i + 1 < argc) {
            runs = std::atoi(argv[++i]);
        } else {
            std::fprintf(stderr, "usage: vorlane_history_bench [--runs N]\n");
            return 2;
        }
    }
    if (runs < 1)
        runs = 1;

    auto largest = makeDocument();
    bench::buildLargestProject(*largest);
    auto doc = makeDocument();
    bool within = true;

    std::printf("History on the largest project (ms, medians of %d; undo and redo target: "
                "under 50):\n",
                runs);
    for (const StepKind &kind : stepKinds(*largest)) {
        *doc = *largest;
        History history(*doc);
        std::vector<Span> bounds, undos, redos;
        std::vector<double> bytes;
        for (int round = 0; round < runs; ++round) {
            const std::size_t held = history.bytes();
            const Stamp start = now();
            history.beginStep(kind.name);
            kind.change(*doc, round);
            history.endStep();
            const Stamp ended = now();
            bytes.push_back(static_cast<double>(history.bytes() - held));
            history.undo();
            const Stamp undone = now();
            history.redo();
            const Stamp redone = now();
            bounds.push_back(between(start, ended));
            undos.push_back(between(ended, undone));
            redos.push_back(between(undone, redone));
        }
        const Span undo = median(undos);
        const Span redo = median(redos);
        within = within && std::max(undo.cpu, redo.cpu) < 50;
        const Span bound = median(bounds);
        std::printf("  %-22s begin+end %7.2f/%7.2f  undo %7.3f/%7.3f  redo %7.3f/%7.3f  "
                    "bytes %10.0f\n",
                    kind.name,
                    bound.wall,
                    bound.cpu,
                    undo.wall,
                    undo.cpu,
                    redo.wall,
                    redo.cpu,
                    median(bytes));
    }

    std::printf("\n1,000 steps in a row (40 of New; memory limit %zu MB):\n",
                History::DefaultMemoryLimit >> 20);
    for (const StepKind &kind : stepKinds(*largest)) {
        *doc = *largest;
        History history(*doc);
        const Stamp start = now();
        // A whole-document step holds tens of MB: a few dozen show how many the limit keeps.
        const bool whole = std::strncmp(kind.name, "new", 3) == 0;
        for (int round = 0; round < (whole ? 40 : 1000); ++round) {
            history.beginStep(kind.name);
            kind.change(*doc, round);
            history.endStep();
        }
        const Span steps = between(start, now());
        const std::size_t kept = history.stepCount();
        const double held = static_cast<double>(history.bytes()) / (1 << 20);
        Span slowest{0, 0};
        while (history.canUndo()) {
            const Stamp before = now();
            history.undo();
            const Span took = between(before, now());
            slowest = {std::max(slowest.wall, took.wall), std::max(slowest.cpu, took.cpu)};
        }
        std::printf("  %-22s kept %4zu  held %8.2f MB  slowest undo %7.3f/%7.3f ms  (steps "
                    "%.0f/%.0f ms)\n",
                    kind.name,
                    kept,
                    held,
                    slowest.wall,
                    slowest.cpu,
                    steps.wall,
                    steps.cpu);
        within = within && history.bytes() <= History::DefaultMemoryLimit && slowest.cpu < 50;
    }
    if (!within) {
        std::printf("A target was missed.\n");
        return 1;
    }
    return 0;
}
