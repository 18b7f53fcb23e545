// What the library for desktops offers to the program.

#include <QtGlobal>

#include "app/desktop_program.h"
#include "base/version.h"

extern "C" Q_DECL_EXPORT const char* quelbyDesktopVersion() {
    return quelby::version().data(); // of a literal, so that a zero follows
}

extern "C" Q_DECL_EXPORT int quelbyRunOnDesktop(const quelby::MachineArguments& arguments,
                                                const quelby::app::DesktopCommand& command, char** argv) {
    return quelby::app::runOnDesktop(arguments, command, argv);
}
