#include "app/desktop_program.h"
#include "app/linux/session/program_library.h"

namespace quelby::app {

Result<DesktopProgram> loadDesktopProgram() {
    return functionFrom({.file = "quelby-desktop.so",
                         .meaning = "the library for desktops",
                         .versionFunction = "quelbyDesktopVersion",
                         .function = "quelbyRunOnDesktop"})
        .map([](void* function) { return reinterpret_cast<DesktopProgram>(function); });
}

} // namespace quelby::app
