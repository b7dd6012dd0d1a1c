// vorlane_window_bench: brings up the editor's main window as the editor does at start-up and
// prints "shown MS", the milliseconds from main() until the window is shown and exposed.
#include "frmMain.h"
#include "QtUserInterface.h"
#include "RegisterEditors.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QWindow>

#include <cstdio>

int main(int argc, char **argv)
{
    QElapsedTimer timer;
    timer.start();

    QApplication app(argc, argv);
    auto document = vorlane::makeDocument();
    vorlane::QtUserInterface userInterface;
    vorlane::frmMain window(*document, userInterface);
    userInterface.setParent(&window);
    vorlane::registerEditors(window);
    window.show();
    // Shown means exposed: the platform has mapped the window and it can be painted.
    while (!(window.windowHandle() && window.windowHandle()->isExposed())) {
        if (timer.elapsed() > 10000) {
            std::fprintf(stderr, "the window was not exposed within 10 s\n");
            return 1;
        }
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    QApplication::processEvents(); // the first paint
    std::printf("shown %.1f\n", static_cast<double>(timer.nsecsElapsed()) / 1e6);
    return 0;
}
