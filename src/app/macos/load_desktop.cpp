#include "app/desktop_program.h"

namespace quelby::app {

// A part of the program here.
Result<DesktopProgram> loadDesktopProgram() {
    return runOnDesktop;
}

} // namespace quelby::app
