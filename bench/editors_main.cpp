// vorlane_editors_bench: opens the largest project the tables allow in the editor's main window
// and measures, for each kind whose editor exists, the time from Edit Properties to the shown
// editor and from Escape to the refreshed list line. Prints one line per kind:
// "KIND open MS close MS", the medians of --runs rounds (default 9), and the same for the
// animation editor opened from the sprite editor on an animation of 101 frames. First it prints
// the medians of File > Open and File > Save As of that project in the main window:
// "open MS save-as MS".
//
// Usage: vorlane_editors_bench [--runs N] [--dir FOLDER]
#include "LargestProject.h"

#include "RegisterEditors.h"
#include "frmMain.h"
#include "io/SystemFileOps.h"
#include "model/Kinds.h"
#include "project/Save.h"
#include "rules/ProgressSink.h"
#include "rules/UserInterface.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <time.h>

namespace {

using namespace vorlane;

// Chooses the project file for Open, `saveAsPath` for Save As, and answers every question
// with Yes or OK.
class BenchUserInterface : public UserInterface
{
public:
    explicit BenchUserInterface(std::string path, std::string saveAsPath = {})
        : m_path(std::move(path))
        , m_saveAsPath(std::move(saveAsPath))
    {}
    MessageAnswer showMessage(const Message &message) override
    {
        return message.buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::OK;
    }
    std::optional<std::string> chooseFile(const FileDialogRequest &request) override
    {
        if (request.mode == FileDialogRequest::Mode::Save && !m_saveAsPath.empty())
            return m_saveAsPath;
        return m_path;
    }

private:
    std::string m_path;
    std::string m_saveAsPath;
};

// The milliseconds `step` takes, with pending events handled before and after it.
double timeStep(const std::function<void()> &step)
{
    QApplication::processEvents();
    QElapsedTimer clock;
    clock.start();
    step();
    QApplication::processEvents();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Timing
{
    double open = 0;
    double close = 0;
};

// Clicks Edit Properties on the list's middle line; once the editor is shown, presses Escape.
// Returns nothing when the kind has no editor.
std::optional<Timing> timeEditor(frmMain &window, int tab)
{
    QListWidget *list = window.objectList(tab);
    list->setCurrentRow(list->count() / 2);
    window.lstObjects_Click(tab);

    QElapsedTimer clock;
    Timing timing;
    qint64 escapeAt = -1;
    bool shown = false;
    std::function<void()> poll = [&]() {
        QWidget *editor = QApplication::activeModalWidget();
        if (editor && editor->windowHandle() && editor->windowHandle()->isExposed()) {
            shown = true;
            timing.open = static_cast<double>(clock.nsecsElapsed()) / 1e6;
            escapeAt = clock.nsecsElapsed();
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QKeyEvent release(QEvent::KeyRelease, Qt::Key_Escape, Qt::NoModifier);
            QApplication::sendEvent(editor, &press);
            QApplication::sendEvent(editor, &release);
            return;
        }
        if (clock.elapsed() < 10000)
            QTimer::singleShot(0, poll);
    };
    QTimer::singleShot(0, poll);
    clock.start();
    window.cmdObjEdit_Click();
    if (!shown)
        return std::nullopt;
    // The editor has closed and the main window has refreshed its line and statistics.
    timing.close = static_cast<double>(clock.nsecsElapsed() - escapeAt) / 1e6;
    return timing;
}

// Opens the sprite editor on the list's middle sprite, then times its Edit Animation on the
// middle animation and Escape in the animation editor, then closes the sprite editor.
std::optional<Timing> timeAnimationEditor(frmMain &window, int tab)
{
    QListWidget *list = window.objectList(tab);
    list->setCurrentRow(list->count() / 2);
    window.lstObjects_Click(tab);

    QElapsedTimer clock;
    Timing timing;
    bool measured = false;
    QWidget *spriteEditor = nullptr;
    qint64 escapeAt = -1;
    const auto pressEscape = [](QWidget *target) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(target, &press);
        QApplication::sendEvent(target, &release);
    };
    std::function<void()> pollAnimation = [&]() {
        QWidget *editor = QApplication::activeModalWidget();
        if (editor && editor != spriteEditor && editor->windowHandle() &&
            editor->windowHandle()->isExposed()) {
            timing.open = static_cast<double>(clock.nsecsElapsed()) / 1e6;
            escapeAt = clock.nsecsElapsed();
            pressEscape(editor);
            return;
        }
        if (clock.elapsed() < 10000)
            QTimer::singleShot(0, pollAnimation);
    };
    std::function<void()> pollSprite = [&]() {
        QWidget *editor = QApplication::activeModalWidget();
        if (!(editor && editor->windowHandle() && editor->windowHandle()->isExposed())) {
            if (clock.elapsed() < 10000)
                QTimer::singleShot(0, pollSprite);
            return;
        }
        spriteEditor = editor;
        auto *rows = editor->findChild<QListWidget *>(QStringLiteral("lstAnimObjects"));
        auto *edit = editor->findChild<QPushButton *>(QStringLiteral("cmdSpriteEditAnim"));
        if (rows && edit && rows->count() > 0) {
            rows->setCurrentRow(rows->count() / 2);
            edit->setEnabled(true);
            QTimer::singleShot(0, pollAnimation);
            clock.restart();
            edit->click();
            if (escapeAt >= 0) {
                timing.close = static_cast<double>(clock.nsecsElapsed() - escapeAt) / 1e6;
                measured = true;
            }
        }
        pressEscape(editor);
    };
    QTimer::singleShot(0, pollSprite);
    clock.start();
    window.cmdObjEdit_Click();
    if (!measured)
        return std::nullopt;
    return timing;
}

} // namespace

int main(int argc, char **argv)
{
    int runs = 9;
    std::filesystem::path dir = std::filesystem::temp_directory_path();
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string option = argv[i];
        if (option == "--runs")
            runs = std::max(1, std::atoi(argv[i + 1]));
        else if (option == "--dir")
            dir = argv[i + 1];
    }

    QApplication app(argc, argv);
    const std::string path = (dir / "vorlane-editors-bench.dvb").string();
    {
        auto largest = makeDocument();
        bench::buildLargestProject(*largest);
        largest->ProjectInfo.projectFilePath = path;
        BenchUserInterface answers(path);
        ProgressSink progress;
        if (!Save(*largest, answers, progress)) {
            std::fprintf(stderr, "vorlane_editors_bench: could not write %s\n", path.c_str());
            return 1;
        }
    }

    const std::string saveAsPath = (dir / "vorlane-editors-bench-saved.dvb").string();
    auto document = makeDocument();
    BenchUserInterface userInterface(path, saveAsPath);
    frmMain window(*document, userInterface);
    registerEditors(window);
    window.show();
    // Open and Save As of the whole project, as a user does them (target: under 150 each).
    std::vector<double> opens;
    std::vector<double> saves;
    for (int run = 0; run < runs; ++run) {
        opens.push_back(timeStep([&] { window.mnuOpen_Click(); }));
        saves.push_back(timeStep([&] { window.mnuSaveAs_Click(); }));
    }
    std::printf("open %.1f save-as %.1f\n", median(opens), median(saves));
    std::filesystem::remove(saveAsPath);
    for (int number = 1; number <= 3; ++number)
        std::filesystem::remove(saveAsPath + ".bak" + std::to_string(number));
    window.mnuOpen_Click();

    for (std::size_t i = 0; i < ListOrder.size(); ++i) {
        const Kind kind = ListOrder[i];
        const int tab = static_cast<int>(i) + 2;
        window.DataTabStrip_Click(tab);
        std::vector<double> opens;
        std::vector<double> closes;
        for (int run = 0; run < runs; ++run) {
            const std::optional<Timing> timing = timeEditor(window, tab);
            if (!timing)
                break;
            opens.push_back(timing->open);
            closes.push_back(timing->close);
        }
        if (opens.empty()) {
            std::printf("%-7s no editor\n", kindInfo(kind).name);
            continue;
        }
        std::printf(
            "%-7s open %.1f close %.1f\n", kindInfo(kind).name, median(opens), median(closes));
        if (kind != Kind::Sprite)
            continue;
        std::vector<double> animOpens;
        std::vector<double> animCloses;
        for (int run = 0; run < runs; ++run) {
            const std::optional<Timing> timing = timeAnimationEditor(window, tab);
            if (!timing)
                break;
            animOpens.push_back(timing->open);
            animCloses.push_back(timing->close);
        }
        if (animOpens.empty())
            std::printf("anim    not measured\n");
        else
            std::printf("anim    open %.1f close %.1f\n", median(animOpens), median(animCloses));
    }

    // The refresh after every step, with the image that every record uses selected: the
    // check with its files (none of them exists here, so each path is a warning line), the
    // problems panel and the status line, and Used By's 2,046 lines.
    window.DataTabStrip_Click(tabOf(Kind::Image));
    std::vector<double> refreshes;
    std::vector<double> refreshCpu; // this thread's processor time: a busy machine adds none
    const auto cpuMs = [] {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
    };
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer clock;
        clock.start();
        const double cpuStart = cpuMs();
        window.refreshChecks();
        refreshCpu.push_back(cpuMs() - cpuStart);
        refreshes.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
    }
    std::printf("refresh %.1f (processor time %.1f)\n", median(refreshes), median(refreshCpu));
    std::filesystem::remove(path);
    return 0;
}
