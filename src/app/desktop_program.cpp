#include "app/desktop_program.h"

#include "app/screenshot.h"
#include "app/tray.h"

namespace quelby::app {

int runOnDesktop(const MachineArguments& arguments, const DesktopCommand& command, char** argv) {
    if (const auto* const tray = std::get_if<TrayCommand>(&command)) {
        return runInTray(arguments, *tray, argv);
    }
    return runScreenshot(arguments, std::get<ScreenshotCommand>(command), argv);
}

} // namespace quelby::app
