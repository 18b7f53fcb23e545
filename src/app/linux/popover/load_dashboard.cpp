#include "app/linux/popover/quick_library.h"
#include "app/linux/session/program_library.h"

namespace quelby::app {

Result<std::unique_ptr<QuickLibrary>> loadQuickLibrary() {
    using Make = QuickLibrary* (*)();
    return functionFrom({.file = "quelby-dashboard.so",
                         .meaning = "the library with the dashboard",
                         .versionFunction = "quelbyDashboardVersion",
                         .function = "quelbyMakeDashboard"})
        .map([](void* make) { return std::unique_ptr<QuickLibrary>(reinterpret_cast<Make>(make)()); });
}

Result<std::unique_ptr<PicturePainter>> loadPicturePainter() {
    return loadQuickLibrary();
}

} // namespace quelby::app
