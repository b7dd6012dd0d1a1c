// vorlane_refresh_bench: measures what the main window computes after every step on the largest
// project: the whole check with the files looked for (fullProjectCheck), its summary and the
// Used By lines of the most used image. Once with every file of the project present (each image
// read for its signature) and once with none of them there (every path a warning).
//
// Usage: vorlane_refresh_bench [--runs N]
#include "LargestProject.h"

#include "model/Kinds.h"
#include "project/CheckSummary.h"
#include "project/ProjectCheck.h"
#include "rules/ObjectFilePath.h"
#include "rules/References.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <time.h>

namespace {

using namespace vorlane;
using Clock = std::chrono::steady_clock;

// One refresh: what frmMain::refreshChecks computes; returns the number of problem and Used By
// lines (the image used by every sprite, button, cursor, text and scene layer).
size_t refresh(const Document &doc)
{
    const std::vector<ProjectProblem> problems = fullProjectCheck(doc, "largest.dvb");
    const std::string summary = checkSummary(problems);
    const std::vector<std::string> lines = usedByLines(doc, {Kind::Image, 0});
    return problems.size() + (summary.empty() ? 0 : lines.size());
}

// The processor time of this thread: on a shared machine the wall time also counts the time
// other processes held the processor.
double cpuMs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Figures
{
    double wallMs = 0;
    double cpuMs = 0;
    size_t lines = 0;
};

Figures measure(const Document &doc, int runs)
{
    std::vector<double> wall, cpu;
    Figures figures;
    for (int run = 0; run < runs; ++run) {
        const auto start = Clock::now();
        const double cpuStart = cpuMs();
        figures.lines = refresh(doc);
        cpu.push_back(cpuMs() - cpuStart);
        wall.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    figures.wallMs = median(wall);
    figures.cpuMs = median(cpu);
    return figures;
}

void print(const char *what, const Figures &figures)
{
    std::printf("refresh, %-20s %7.2f ms (processor time %6.2f ms), %zu problems and lines\n",
                what,
                figures.wallMs,
                figures.cpuMs,
                figures.lines);
}

// Writes a small file of the right kind at every path the project names.
void writeEveryFile(const Document &doc)
{
    const auto write = [&](const std::string &stored, const char *bytes) {
        const auto path = resolveObjectPath(doc, stored);
        if (!path)
            return;
        std::filesystem::create_directories(std::filesystem::path(*path).parent_path());
        std::ofstream(*path, std::ios::binary) << bytes;
    };
    write(doc.AppSettings.windowIcon, "icon");
    write(doc.AppSettings.splashImagePath, "BM");
    for (const ImageRec &image : doc.Images)
        write(image.path, "BM");
    for (const FontRec &font : doc.Fonts)
        write(font.path, "font");
    for (const MusicRec &music : doc.MusicTracks)
        write(music.path, "OggS");
    for (const SFXRec &sfx : doc.SoundEffects)
        write(sfx.path, "RIFF");
}

} // namespace

int main(int argc, char **argv)
{
    int runs = 101;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--runs") == 0 && i + 1 < argc)
            runs = std::max(1, std::atoi(argv[++i]));
    }
    auto doc = makeDocument();
    bench::buildLargestProject(*doc);
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / "vorlane-refresh-bench";
    std::filesystem::remove_all(folder);
    doc->ProjectInfo.projectFilePath = (folder / "largest.dvb").string();
    doc->AppSettings.rootFolder.clear();

    print("no file present:", measure(*doc, runs));
    writeEveryFile(*doc);
    print("every file present:", measure(*doc, runs));
    std::filesystem::remove_all(folder);
    return 0;
}
