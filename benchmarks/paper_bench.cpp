#include "coloured_text.h"

#include "desktop/platform/qt_pictures.h"
#include "desktop/platform/qt_printers.h"
#include "desktop/viewer/view_image_view.h"
#include "documents/printing/print_pane.h"
#include "platform/posix/drive_map.h"
#include "support/test_program.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QTemporaryDir>

#include <chrono>

namespace tarvex::benchmarks {
namespace {

/// 30,000 coloured characters as the bytes of a PDF file.
void printToPdf(benchmark::State& state)
{
    TestProgram t;
    QtPrinters printers;
    Pane& pane = t.editor().JoystickText;
    fillColoured(pane, 30'000);
    for (auto _ : state)
        benchmark::DoNotOptimize(printers.pdf("mig.b50", printJob(t.editor(), pane, "mig.b50")).size());
}
BENCHMARK(printToPdf)->Unit(benchmark::kMillisecond);

/// A picture of 4,000 x 3,000 pixels, from its file to the painted window.
void showImage(benchmark::State& state)
{
    const QTemporaryDir folder;
    QImage image(4000, 3000, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) image.setPixel(x, y, qRgb(x / 16, y / 12, (x * y) & 0xFF));
    const QString path = folder.filePath("large.jpg");
    image.save(path);
    const DriveMap drives{{}};
    QtPictures pictures(drives);
    TestProgram t;
    ViewImage& window = t.program().imageViewer;
    ViewImageView view(window, nullptr);
    t.menus().mnuAppsImageViewer.Click();
    view.refresh();
    QApplication::processEvents();
    for (auto _ : state) {
        window.Picture3 = pictures.load(drives.toDos(path.toStdString()));
        window.mnuZoomActual.Click();
        benchmark::DoNotOptimize(view.grab().width());
    }
}
BENCHMARK(showImage)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvex::benchmarks
