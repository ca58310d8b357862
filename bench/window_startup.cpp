// Start-up to first paint, and peak memory, of the Plotter window against a
// bare Qt Widgets window; bench/window_startup.sh runs both and compares.
// Usage: quilmar_window_startup bare|bare-no-autolaunch|label|plotter
// (prints milliseconds and kilobytes)
// "bare-no-autolaunch" is the bare window spared, as the plotter is, the doomed
// attempt to start a session bus where there is none and none can be started:
// it shows how much of the bare window's time is that attempt rather than the
// window. "label" is the bare window with one line of text: it shows what the
// font start-up (fontconfig, freetype) alone costs, which the bare window never pays.

#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <optional>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>
#include <QWidget>

#include "font_warm_up.h"
#include "plotter.h"
#include "session_bus.h"
#include "window_setup.h"

namespace {

QElapsedTimer g_clock;

// On standard error, the milliseconds at which each step of start-up ended.
void phase(const char *name)
{
    std::fprintf(stderr, "%s %.1f ", name, double(g_clock.nsecsElapsed()) / 1e6);
}

void reportAndQuit()
{
    const double ms = double(g_clock.nsecsElapsed()) / 1e6;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("first_paint_ms %.2f max_rss_kb %ld\n", ms, usage.ru_maxrss);
    // QUILMAR_STARTUP_SMAPS=file keeps the memory map at first paint, to see
    // which libraries, fonts and heaps the resident memory is in.
    if (const char *out = std::getenv("QUILMAR_STARTUP_SMAPS"))
        std::ofstream(out) << std::ifstream("/proc/self/smaps").rdbuf();
    QTimer::singleShot(0, qApp, &QApplication::quit);
}

// Quits after its first paint.
class FirstPaint : public QObject {
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && !m_done) {
            m_done = true;
            phase("painted");
            QTimer::singleShot(0, qApp, reportAndQuit);
        }
        return false;
    }

private:
    bool m_done = false;
};

} // namespace

int main(int argc, char **argv)
{
    g_clock.start();
    const char *kind = argc > 1 ? argv[1] : "bare";
    const bool plotter = std::strcmp(kind, "plotter") == 0;
    // The plotter starts as the program starts it (quilmar's runWindow).
    std::optional<quilmar::FontWarmUp> fonts;
    if (plotter || std::strcmp(kind, "bare-no-autolaunch") == 0)
        quilmar::avoidBusAutolaunch();
    if (plotter)
        fonts.emplace();
    QApplication app(argc, argv);
    phase("application");
    if (fonts)
        fonts->wait();
    phase("fonts");
    FirstPaint watch;
    quilmar::bench::QuietDialogs dialogs;
    std::unique_ptr<QWidget> window;
    if (plotter) {
        window = std::make_unique<quilmar::Plotter>(
            dialogs, quilmar::startupOptionsFor(QCoreApplication::applicationFilePath().toStdString()));
    } else {
        window = std::make_unique<QWidget>();
        window->resize(1020, 620);
        if (std::strcmp(kind, "label") == 0)
            new QLabel("Enter Metes and Bounds here", window.get());
    }
    phase("built");
    window->installEventFilter(&watch);
    window->show();
    phase("shown");
    return app.exec();
}
