#include "app/screenshot.h"

#include <QGuiApplication>
#include <QImageWriter>
#include <QSaveFile>
#include <QTemporaryDir>
#include <fmt/format.h>

#include "app/picture_painter.h"
#include "console/cycles.h"
#include "console/program.h"

namespace quelby::app {

namespace {

CycleRun untilThePicture(const Machine& machine, const MachineOptions& options) {
    const bool recorded = machine.kind() == MachineKind::recorded;
    CycleRun run{.interval = std::chrono::seconds(0),
                 .history =
                     recorded && !options.dataDir ? HistoryAccess::recording : HistoryAccess::readOnly};
    if (!recorded) {
        run.count = 1;
    }
    return run;
}

// What is neither a file nor missing, such as a device, must not be replaced by a file.
bool mayBecomePicture(const std::filesystem::path& path) {
    std::error_code ignored;
    const auto status = std::filesystem::status(path, ignored);
    return !std::filesystem::exists(status) || std::filesystem::is_regular_file(status);
}

// The file is there as a whole or as it was.
Result<void> write(const QImage& picture, const std::filesystem::path& path) {
    if (!mayBecomePicture(path)) {
        return problem(fmt::format("the picture cannot be written to \"{}\": it is no file", path.string()));
    }
    QSaveFile file(QString::fromStdString(path.string()));
    if (!file.open(QIODevice::WriteOnly) || !QImageWriter(&file, "png").write(picture) || !file.commit()) {
        return problem(fmt::format("the picture cannot be written to \"{}\": {}", path.string(),
                                   file.errorString().toStdString()));
    }
    return {};
}

Result<void> draw(PowerMonitor& monitor, Clock& clock, const ScreenshotCommand& command) {
    const auto painter = loadPicturePainter();
    if (!painter) {
        return tl::make_unexpected(painter.error());
    }
    monitor.selectHistoryRange(monitor.historyRange); // with what the cycles have recorded
    const PictureOptions options{.settings = command.page == Page::settings,
                                 .energy = command.energy,
                                 .dark = command.dark,
                                 .scale = command.scale,
                                 .scrolledTo = command.scroll};
    return write((*painter)->picture(monitor.shared_from_this(), clock, options), command.file);
}

Result<void> takeScreenshot(const MachineArguments& arguments, const ScreenshotCommand& command) {
    const auto machine = Machine::make(arguments.machine);
    if (!machine) {
        return tl::make_unexpected(machine.error());
    }
    const auto platform = (*machine)->platform();
    auto run = untilThePicture(**machine, arguments.machine);
    run.atEnd = [&](PowerMonitor& monitor) { return draw(monitor, *platform.clock, command); };
    return runCycles(**machine, platform, run);
}

// Qt looks for a display there, also if it is told to use none, and says so where the session has no such
// folder.
void useRuntimeFolder(const QTemporaryDir& folder) {
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    }
}

} // namespace

int runScreenshot(const MachineArguments& arguments, const ScreenshotCommand& command, char** argv) {
    const QTemporaryDir runtimeFolder;
    useRuntimeFolder(runtimeFolder);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication::setDesktopSettingsAware(false);
    return runProgramWith<QGuiApplication>("quelby", argv,
                                           [&] { return takeScreenshot(arguments, command); });
}

} // namespace quelby::app
