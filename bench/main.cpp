// vorlane_bench: measures Save, Open and Generate on the largest project the tables allow,
// each beside a plain copy of the same bytes (the file reads and writes alone, no parsing or
// formatting), and vorlane-cli convert and generate as processes, with their peak memory;
// then vorlane-cli export, import, diff and merge on the same project.
// With --window it measures instead how long the editor's main window takes to come up.
//
// Usage: vorlane_bench [--runs N] [--dir FOLDER] [--cli VORLANE_CLI] [--peak-memory WRAPPER]
//        vorlane_bench --window HARNESS [--runs N]
#include "LargestProject.h"

#include "generate/EngineFiles.h"
#include "generate/FileOutput.h"
#include "generate/GenData.h"
#include "model/Kinds.h"
#include "rules/ProgressSink.h"
#include "rules/UserInterface.h"
#include "project/Open.h"
#include "io/SafeSave.h"
#include "project/Save.h"
#include "io/SystemFileOps.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace vorlane;
using Clock = std::chrono::steady_clock;

constexpr double MB = 1e6;
// The budget of the two commands: within this many times the plain copy of their bytes.
constexpr double ToolRatio = 10.0;

// Answers Yes to the questions of Save and Generate and shows nothing.
class AnswerYes : public UserInterface
{
public:
    MessageAnswer showMessage(const Message &message) override
    {
        return message.buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::OK;
    }
    std::optional<std::string> chooseFile(const FileDialogRequest &) override { return {}; }
};

[[noreturn]] void fail(const std::string &what)
{
    std::fprintf(stderr, "vorlane_bench: %s\n", what.c_str());
    std::exit(1);
}

double seconds(Clock::duration d)
{
    return std::chrono::duration<double>(d).count();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

// The median time of `runs` calls of `work`; `prepare` runs before each call, untimed.
double
medianTime(int runs, const std::function<void()> &work, const std::function<void()> &prepare = {})
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        if (prepare)
            prepare();
        const auto start = Clock::now();
        work();
        times.push_back(seconds(Clock::now() - start));
    }
    return median(times);
}

struct ChildRun
{
    double seconds = 0;
    long maxRssKb = 0;
    int exitCode = -1;
    std::string output; // standard output
};

// Runs `argv` as a child process and collects its standard output.
ChildRun runChild(const std::vector<std::string> &argv)
{
    int out[2];
    if (::pipe(out) != 0)
        fail("pipe failed");
    std::vector<char *> args;
    for (const std::string &arg : argv)
        args.push_back(const_cast<char *>(arg.c_str()));
    args.push_back(nullptr);

    const auto start = Clock::now();
    const pid_t child = ::fork();
    if (child < 0)
        fail("fork failed");
    if (child == 0) {
        const int null = ::open("/dev/null", O_WRONLY);
        ::dup2(out[1], STDOUT_FILENO);
        ::dup2(null, STDERR_FILENO);
        ::close(out[0]);
        ::execv(args[0], args.data());
        ::_exit(127);
    }
    ::close(out[1]);
    ChildRun run;
    char buffer[4096];
    for (ssize_t n; (n = ::read(out[0], buffer, sizeof buffer)) > 0;)
        run.output.append(buffer, static_cast<size_t>(n));
    ::close(out[0]);
    int status = 0;
    if (::waitpid(child, &status, 0) != child)
        fail("waitpid failed");
    run.seconds = seconds(Clock::now() - start);
    run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

// Runs `argv` through vorlane_peak_memory, which reports its time and peak memory; a child
// forked from this process would count this process's memory in its peak.
ChildRun measureChild(const std::string &peakMemory, std::vector<std::string> argv)
{
    argv.insert(argv.begin(), peakMemory);
    const ChildRun wrapper = runChild(argv);
    ChildRun run;
    if (wrapper.exitCode != 0 ||
        std::sscanf(
            wrapper.output.c_str(), "%lf %ld %d", &run.seconds, &run.maxRssKb, &run.exitCode) != 3)
        fail(peakMemory + " failed");
    return run;
}

std::string readFile(const std::string &path)
{
    std::string bytes;
    if (const int error = systemFileOps().readAll(path, bytes); error != 0)
        fail(path + ": " + errorText(error));
    return bytes;
}

void writeSafely(const std::string &path, std::string_view bytes)
{
    const FileWriteResult result = writeFileSafely(path, bytes, systemFileOps());
    if (!result.ok)
        fail(path + ": " + result.reason);
}

struct EngineFile
{
    std::string name;
    std::string bytes;
};

// The eleven engine files of `doc`, in the order GenData writes them.
std::vector<EngineFile> engineFiles(const Document &doc, const std::string &dataFolderRel)
{
    std::vector<EngineFile> files{
        {std::string(AppCfgName), appCfg(doc.AppSettings, dataFolderRel)}};
    for (Kind kind : FileOrder)
        files.push_back({kindInfo(kind).dataFile, dataFile(doc, kind)});
    files.push_back({std::string(LogCfgName), logCfg(doc.AppSettings)});
    return files;
}

void writeEngineFiles(const std::string &folder, const std::vector<EngineFile> &files)
{
    for (const EngineFile &file : files)
        if (auto reason = diskFileOutput().writeFile(folder + file.name, file.bytes))
            fail(folder + file.name + ": " + *reason);
}

size_t totalSize(const std::vector<EngineFile> &files)
{
    size_t size = 0;
    for (const EngineFile &file : files)
        size += file.bytes.size();
    return size;
}

struct Row
{
    const char *name;
    size_t bytes;       // bytes read plus bytes written
    double time;        // median seconds
    double copyTime;    // median seconds of the plain copy
    double targetRatio; // 0 when no target applies
};

bool printRows(const std::vector<Row> &rows)
{
    bool allMet = true;
    std::printf("%-22s %9s %9s %10s %10s %7s  %s\n",
                "",
                "ms",
                "MB/s",
                "copy ms",
                "copy MB/s",
                "ratio",
                "target");
    for (const Row &row : rows) {
        const double ratio = row.time / row.copyTime;
        std::string target = "-";
        if (row.targetRatio > 0) {
            const bool met = ratio <= row.targetRatio;
            allMet = allMet && met;
            char text[48];
            std::snprintf(
                text, sizeof text, "<= %.1fx %s", row.targetRatio, met ? "met" : "MISSED");
            target = text;
        }
        std::printf("%-22s %9.1f %9.1f %10.1f %10.1f %6.2fx  %s\n",
                    row.name,
                    row.time * 1e3,
                    static_cast<double>(row.bytes) / MB / row.time,
                    row.copyTime * 1e3,
                    static_cast<double>(row.bytes) / MB / row.copyTime,
                    ratio,
                    target.c_str());
    }
    return allMet;
}

int benchCore(int runs,
              const std::string &folder,
              const std::string &cli,
              const std::string &peakMemory)
{
    AnswerYes ui;
    ProgressSink quiet;

    auto doc = makeDocument();
    bench::buildLargestProject(*doc);
    const std::string project = folder + "/largest.dvb";
    doc->ProjectInfo.projectFilePath = project;
    const std::string generated = folder + "/generated/";
    std::filesystem::create_directories(generated);
    doc->ProjectInfo.generatePath = generated;

    if (!saveProject(*doc, ui, quiet, systemFileOps()).written())
        fail(project + ": could not be saved");
    const std::string bytes = readFile(project);
    const auto lines = std::count(bytes.begin(), bytes.end(), '\n');
    const std::vector<EngineFile> files = engineFiles(*doc, "generated/");
    const size_t engineBytes = totalSize(files);
    std::printf("Project: %.2f MB, %ld lines; engine files: %.2f MB; median of %d runs\n\n",
                static_cast<double>(bytes.size()) / MB,
                static_cast<long>(lines),
                static_cast<double>(engineBytes) / MB,
                runs);

    std::vector<Row> rows;
    const std::string copyProject = folder + "/copy.dvb";
    const std::string copyFolder = folder + "/copy/";
    std::filesystem::create_directories(copyFolder);

    // Save: the writer and the safe save (temporary file, fsync, rename).
    const double save = medianTime(runs, [&] {
        if (!saveProject(*doc, ui, quiet, systemFileOps()).written())
            fail(project + ": could not be saved");
    });
    const double saveCopy = medianTime(runs, [&] { writeSafely(copyProject, readFile(project)); });
    rows.push_back({"Save", bytes.size(), save, saveCopy, 0});

    // Open at program start: a new document, the file read and parsed.
    std::unique_ptr<Document> opened;
    const double open = medianTime(
        runs,
        [&] {
            if (!openProject(*opened, project, ui, quiet, systemFileOps()).opened())
                fail(project + ": could not be opened");
        },
        [&] { opened = makeDocument(); });
    const double openCopy = medianTime(runs, [&] { (void)readFile(project); });
    rows.push_back({"Open", bytes.size(), open, openCopy, 0});

    // Generate: GenData into a folder.
    const double generate = medianTime(runs, [&] {
        if (auto failure = GenData(*doc, "generated/", quiet))
            fail(failure->path + ": " + failure->reason);
    });
    const double generateCopy = medianTime(runs, [&] { writeEngineFiles(copyFolder, files); });
    rows.push_back({"Generate", engineBytes, generate, generateCopy, 0});

    // The command-line tool, as a process: Open and Save, Open and Generate. Each run of the
    // tool alternates with a run of its copy, so that both meet the same moments of a shared
    // machine.
    struct ChildTimes
    {
        double median = 0;
        double copyMedian = 0;
        long maxRssKb = 0;
    };
    const auto measureTool = [&](const std::vector<std::string> &argv,
                                 const std::function<void()> &copy,
                                 int expectedExit = 0) {
        std::vector<double> times, copyTimes;
        ChildTimes result;
        for (int i = 0; i < runs; ++i) {
            const ChildRun run = measureChild(peakMemory, argv);
            if (run.exitCode != expectedExit)
                fail("vorlane-cli " + argv[1] + " failed");
            times.push_back(run.seconds);
            result.maxRssKb = std::max(result.maxRssKb, run.maxRssKb);
            copyTimes.push_back(medianTime(1, copy));
        }
        result.median = median(times);
        result.copyMedian = median(copyTimes);
        return result;
    };

    const std::string converted = folder + "/converted.dvb";
    const ChildTimes convert = measureTool({cli, "convert", project, converted},
                                           [&] { writeSafely(copyProject, readFile(project)); });
    rows.push_back(
        {"vorlane-cli convert", 2 * bytes.size(), convert.median, convert.copyMedian, ToolRatio});

    const std::string cliOut = folder + "/cli-generated";
    const ChildTimes cliGenerate =
        measureTool({cli, "generate", project, cliOut, "--root", folder}, [&] {
            (void)readFile(project);
            writeEngineFiles(copyFolder, files);
        });
    rows.push_back({"vorlane-cli generate",
                    bytes.size() + engineBytes,
                    cliGenerate.median,
                    cliGenerate.copyMedian,
                    ToolRatio});
    const long convertRss = convert.maxRssKb;
    const long generateRss = cliGenerate.maxRssKb;

    bool met = printRows(rows);
    const double limitMb = 64;
    std::printf("\nPeak memory (max RSS): vorlane-cli convert %.1f MB, vorlane-cli generate %.1f MB"
                " (target < %.0f MB: %s)\n",
                static_cast<double>(convertRss) / 1024,
                static_cast<double>(generateRss) / 1024,
                limitMb,
                std::max(convertRss, generateRss) / 1024.0 < limitMb ? "met" : "MISSED");
    met = met && std::max(convertRss, generateRss) / 1024.0 < limitMb;

    // The JSON form: export and import of the largest project, a diff of it against the
    // converted copy (which differs in its recorded path) and a merge of the three, each as a
    // process with its peak memory.
    const std::string json = folder + "/largest.json";
    const std::string imported = folder + "/imported.dvb";
    const std::string merged = folder + "/merged.dvb";
    struct JsonRow
    {
        const char *name;
        ChildTimes times;
        double limitSeconds;
    };
    const auto justRead = [&] {
        (void)readFile(project);
    };
    std::vector<JsonRow> jsonRows;
    jsonRows.push_back(
        {"vorlane-cli export", measureTool({cli, "export", project, json}, justRead), 1.0});
    const std::string jsonBytes = readFile(json);
    jsonRows.push_back(
        {"vorlane-cli import", measureTool({cli, "import", json, imported}, justRead), 1.0});
    if (readFile(imported) != bytes)
        fail(imported + ": import did not give back the project file");
    jsonRows.push_back(
        {"vorlane-cli diff", measureTool({cli, "diff", project, converted}, justRead, 1), 2.0});
    jsonRows.push_back(
        {"vorlane-cli merge",
         measureTool({cli, "merge", project, converted, project, "-o", merged}, justRead),
         2.0});
    const double jsonLimitMb = 256;
    std::printf("\nJSON form: %.2f MB; median of %d runs\n",
                static_cast<double>(jsonBytes.size()) / MB,
                runs);
    for (const JsonRow &row : jsonRows) {
        const double mb = static_cast<double>(row.times.maxRssKb) / 1024;
        const bool rowMet = row.times.median < row.limitSeconds && mb < jsonLimitMb;
        std::printf("%-22s %9.1f ms %9.1f MB peak  (target < %.0f ms, < %.0f MB: %s)\n",
                    row.name,
                    row.times.median * 1e3,
                    mb,
                    row.limitSeconds * 1e3,
                    jsonLimitMb,
                    rowMet ? "met" : "MISSED");
        met = met && rowMet;
    }
    return met ? 0 : 3;
}

// The harness prints "shown MS" (the milliseconds from its main() to the shown window) and
// exits; the time from starting the process to that line is the window-up time.
int benchWindow(int runs, const std::string &harness)
{
    std::vector<double> wall, inProcess;
    for (int i = 0; i < runs; ++i) {
        const ChildRun run = runChild({harness});
        double ms = 0;
        if (run.exitCode != 0 || std::sscanf(run.output.c_str(), "shown %lf", &ms) != 1)
            fail(harness + ": the window did not come up");
        wall.push_back(run.seconds);
        inProcess.push_back(ms / 1e3);
    }
    const double up = median(wall);
    const char *platform = std::getenv("QT_QPA_PLATFORM");
    std::printf("Window up (%s): %.0f ms from process start, %.0f ms from main(), median of %d "
                "runs (target <= 300 ms: %s)\n",
                platform ? platform : "default platform",
                up * 1e3,
                median(inProcess) * 1e3,
                runs,
                up <= 0.3 ? "met" : "MISSED");
    return up <= 0.3 ? 0 : 3;
}

} // namespace

int main(int argc, char **argv)
{
    int runs = 7;
    std::string folder;
    std::string cli = VORLANE_CLI_PATH;
    std::string peakMemory = VORLANE_PEAK_MEMORY_PATH;
    std::string window;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        const bool hasValue = i + 1 < argc;
        if (arg == "--runs" && hasValue)
            runs = std::max(1, std::atoi(argv[++i]));
        else if (arg == "--dir" && hasValue)
            folder = argv[++i];
        else if (arg == "--cli" && hasValue)
            cli = argv[++i];
        else if (arg == "--peak-memory" && hasValue)
            peakMemory = argv[++i];
        else if (arg == "--window" && hasValue)
            window = argv[++i];
        else
            fail("usage: vorlane_bench [--runs N] [--dir FOLDER] [--cli VORLANE_CLI] "
                 "[--peak-memory WRAPPER] | --window HARNESS [--runs N]");
    }
    if (!window.empty())
        return benchWindow(runs, window);

    bool temporary = false;
    if (folder.empty()) {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "vorlane-bench-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            fail("cannot create a temporary folder");
        folder = pattern;
        temporary = true;
    }
    const int result = benchCore(runs, std::filesystem::absolute(folder).string(), cli, peakMemory);
    if (temporary)
        std::filesystem::remove_all(folder);
    return result;
}
