// What the dashboard costs to make, to draw and to renew, in CPU time, without a display and without a GPU.
// The baseline of each is the same window with nothing in it but its background.

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>
#include <fmt/format.h>

#include "briefly.h"
#include "platform/host/machine.h"
#include "ui/presentation/elements/metrics.h"
#include "ui/view/dashboard_view.h"

namespace quelby {
namespace {

constexpr QSize viewSize(viewWidth, viewHeight);

// A laptop as it is after all of its recording.
class Laptop {
public:
    Laptop() {
        MachineOptions options;
        options.replay = QUELBY_SOURCE_DIR "/resources/recordings/laptop-on-battery.jsonl";
        options.afterLastLine = AfterLastLine::startAgain;
        machine_ = *Machine::make(options);
        monitor_ = PowerMonitor::create(machine_->platform(), {.interval = std::chrono::seconds(1'000'000)});
        for (int cycle = 0; cycle < 60; ++cycle) {
            nextCycle();
        }
    }

    // The timers of the cycles before are never reached.
    void nextCycle() {
        monitor_->stopMonitoring();
        monitor_->startMonitoring();
    }

    [[nodiscard]] std::unique_ptr<DashboardModel> model() {
        return std::make_unique<DashboardModel>(monitor_, *machine_->platform().clock,
                                                ProgramActions{.quit = [] {}, .openBatterySettings = [] {}});
    }

private:
    std::unique_ptr<Machine> machine_;
    std::shared_ptr<PowerMonitor> monitor_;
};

// Draws what it holds into a picture, as a window does on the screen.
class PictureWindow {
public:
    PictureWindow() : picture_(viewSize, QImage::Format_ARGB32_Premultiplied), window_(&control_) {
        window_.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&picture_));
        window_.resize(viewSize);
        window_.contentItem()->setSize(viewSize);
        QObject::connect(&control_, &QQuickRenderControl::renderRequested, [this] { wanted_ = true; });
        QObject::connect(&control_, &QQuickRenderControl::sceneChanged, [this] { wanted_ = true; });
    }

    [[nodiscard]] QQuickItem* content() { return window_.contentItem(); }

    void draw() {
        QCoreApplication::sendPostedEvents();
        wanted_ = false;
        control_.polishItems();
        control_.beginFrame();
        control_.sync();
        control_.render();
        control_.endFrame();
    }

    // So long as all that moves takes to come to rest.
    void drawWhatMoves() {
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < 200) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
            if (wanted_) {
                draw();
            }
        }
    }

private:
    QImage picture_;
    QQuickRenderControl control_;
    QQuickWindow window_;
    bool wanted_ = false; // to be drawn
};

double cpuMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// The median of what the work costs, each time after its preparation.
double median(int times, const std::function<void()>& prepare, const std::function<void()>& work) {
    std::vector<double> costs;
    for (int time = 0; time < times; ++time) {
        prepare();
        const double before = cpuMilliseconds();
        work();
        costs.push_back(cpuMilliseconds() - before);
    }
    std::nth_element(costs.begin(), costs.begin() + times / 2, costs.end());
    return costs[static_cast<std::size_t>(times) / 2];
}

double emptyWindow(int times) {
    return median(
        times, [] {},
        [] {
            PictureWindow window;
            window.draw();
        });
}

double firstFrame(Laptop& laptop, int times) {
    return median(
        times, [] {},
        [&] {
            const auto model = laptop.model();
            DashboardView view(*model, {.animated = false});
            view.setWatched(true);
            PictureWindow window;
            view.item().setParentItem(window.content());
            window.draw();
            view.item().setParentItem(nullptr);
        });
}

// A view that was kept while it was closed: up to date again, and drawn as a whole into a new window.
double frameOfKeptView(Laptop& laptop, int times) {
    const auto model = laptop.model();
    DashboardView view(*model, {.animated = false});
    return median(
        times, [&] { laptop.nextCycle(); },
        [&] {
            PictureWindow window;
            view.item().setParentItem(window.content());
            view.setWatched(true);
            window.draw();
            view.setWatched(false);
            view.item().setParentItem(nullptr);
        });
}

double redrawAfterCycle(Laptop& laptop, int times, bool animated) {
    const auto model = laptop.model();
    DashboardView view(*model, {.animated = animated});
    view.setWatched(true);
    PictureWindow window;
    view.item().setParentItem(window.content());
    window.draw();
    const double cost = median(
        times, [&] { laptop.nextCycle(); },
        [&] {
            window.draw(); // what has been posted comes first: the cards are made anew
            if (animated) {
                window.drawWhatMoves();
            }
        });
    view.item().setParentItem(nullptr);
    return cost;
}

void print(const char* name, double milliseconds, double baseline) {
    std::fputs(
        fmt::format("{:<44}{:>8.2f} ms{:>9.1f}\n", name, milliseconds, milliseconds / baseline).c_str(),
        stdout);
}

void printAll(int times) {
    Laptop laptop;
    const double cold = firstFrame(laptop, 1);
    const double baseline = emptyWindow(times);
    std::fputs("median CPU time                                        to baseline\n", stdout);
    print("baseline: an empty window, made and drawn", baseline, baseline);
    print("first frame of all, from nothing", cold, baseline);
    print("later first frames, from nothing", firstFrame(laptop, times), baseline);
    print("first frame of a view that was kept", frameOfKeptView(laptop, times), baseline);
    print("redraw after a cycle", redrawAfterCycle(laptop, times, false), baseline);
    print("redraws after a cycle, figures gliding", redrawAfterCycle(laptop, times, true), baseline);
}

} // namespace
} // namespace quelby

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication::setDesktopSettingsAware(false);
    quelby::drawWithoutGpu();
    const QGuiApplication application(argc, argv);
    quelby::printAll(quelby::isBrief(argc, argv) ? 1 : 50);
    return 0;
}
