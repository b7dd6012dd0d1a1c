// vorlane_scene_drag_bench: opens the scene editor on a scene of the largest project the tables
// allow (101 layers, every image file present as a 128 x 64 picture) and drags an object across
// its preview, one pointer move at a time. Each frame is the move (the object's fields stored,
// the scene laid out and drawn again) and the repaint of the preview. Prints the median and the
// slowest frame of --moves moves (default 200) at each zoom, with the 90th percentile and how
// many frames took 16 ms or more, and the median and slowest of the time the program's thread
// spent working on a frame (which a busy machine does not stretch):
// "ZOOM frames N median MS p90 MS max MS over16 K cpu median MS max MS".
//
// Usage: vorlane_scene_drag_bench [--moves N] [--dir FOLDER]
#include "LargestProject.h"

#include "SceneCanvas.h"
#include "ScenePreview.h"
#include "frmScene.h"
#include "model/Kinds.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <ctime>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using namespace vorlane;

// The value below which `share` of `values` lie.
double percentile(std::vector<double> values, double share)
{
    std::sort(values.begin(), values.end());
    return values[static_cast<size_t>(share * static_cast<double>(values.size() - 1))];
}

void send(QWidget *widget, QEvent::Type type, QPoint at, Qt::MouseButtons buttons)
{
    QMouseEvent event(type,
                      QPointF(at),
                      QPointF(widget->mapToGlobal(at)),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

double threadCpuMs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

} // namespace

int main(int argc, char **argv)
{
    int moves = 200;
    std::filesystem::path dir = std::filesystem::temp_directory_path() / "vorlane-drag-bench";
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string option = argv[i];
        if (option == "--moves")
            moves = std::max(1, std::atoi(argv[i + 1]));
        else if (option == "--dir")
            dir = argv[i + 1];
    }
    QApplication app(argc, argv);
    std::filesystem::create_directories(dir / "gfx");

    auto doc = makeDocument();
    bench::buildLargestProject(*doc);
    doc->ProjectInfo.projectFilePath = (dir / "bench.dvb").string();
    doc->AppSettings.rootFolder = "null";
    // Every image's file, a sheet of coloured 32 x 32 cells.
    QImage sheet(128, 64, QImage::Format_ARGB32);
    QPainter painter(&sheet);
    for (int cell = 0; cell < 8; ++cell)
        painter.fillRect(
            (cell % 4) * 32, (cell / 4) * 32, 32, 32, QColor::fromHsv(cell * 45, 200, 220));
    painter.end();
    for (ImageRec &image : doc->Images) {
        std::string name = image.path;
        std::replace(name.begin(), name.end(), '\\', '/');
        sheet.save(QString::fromStdString((dir / name).string()), "BMP");
    }

    doc->currentObjectIndex = static_cast<int16_t>(doc->Scenes.size() / 2);
    frmScene editor(*doc);
    editor.Form_Load();
    editor.resize(1200, 800);
    editor.show();
    QApplication::processEvents();
    SceneCanvas *canvas = editor.form().picScenePreview->canvas();
    QComboBox *zoom = editor.form().picScenePreview->zoomBox();

    for (int index = 0; index < zoom->count(); ++index) {
        zoom->setCurrentIndex(index);
        emit zoom->activated(index);
        QApplication::processEvents();
        // The image of layer 2 (img000), dragged to the right and back.
        const QRect drawn = canvas->objectRect(2);
        if (drawn.isEmpty()) {
            std::fprintf(stderr, "vorlane_scene_drag_bench: layer 2 draws nothing\n");
            return 1;
        }
        const QPoint from = drawn.topLeft() + QPoint(2, 2);
        send(canvas, QEvent::MouseButtonPress, from, Qt::LeftButton);
        std::vector<double> frames;
        std::vector<double> cpu;
        QElapsedTimer clock;
        for (int move = 1; move <= moves; ++move) {
            const int step = move % 100 < 50 ? move % 50 : 50 - move % 50;
            clock.start();
            const double cpuStart = threadCpuMs();
            send(canvas, QEvent::MouseMove, from + QPoint(step * 3, step), Qt::LeftButton);
            canvas->repaint();
            frames.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
            cpu.push_back(threadCpuMs() - cpuStart);
        }
        send(canvas, QEvent::MouseButtonRelease, from, Qt::NoButton);
        std::printf("%-5s frames %d median %.2f p90 %.2f max %.2f over16 %d cpu median %.2f max "
                    "%.2f\n",
                    zoom->itemText(index).toUtf8().constData(),
                    moves,
                    percentile(frames, 0.5),
                    percentile(frames, 0.9),
                    *std::max_element(frames.begin(), frames.end()),
                    static_cast<int>(std::count_if(
                        frames.begin(), frames.end(), [](double f) { return f >= 16; })),
                    percentile(cpu, 0.5),
                    *std::max_element(cpu.begin(), cpu.end()));
    }
    editor.done(0);
    std::filesystem::remove_all(dir);
    return 0;
}
