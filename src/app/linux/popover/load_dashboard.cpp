#include <QCoreApplication>
#include <QLibrary>

#include "app/linux/popover/quick_library.h"

namespace quelby::app {

namespace {

using Make = QuickLibrary* (*)();

} // namespace

// Beside the program where it was built, below lib where it was installed.
std::unique_ptr<QuickLibrary> loadQuickLibrary() {
    const auto folder = QCoreApplication::applicationDirPath();
    for (const auto* const place : {"/quelby-dashboard.so", "/../lib/quelby/quelby-dashboard.so"}) {
        QLibrary library(folder + QLatin1String(place));
        if (const auto make = reinterpret_cast<Make>(library.resolve("quelbyMakeDashboard"))) {
            return std::unique_ptr<QuickLibrary>(make());
        }
    }
    return nullptr;
}

std::unique_ptr<PicturePainter> loadPicturePainter() {
    return loadQuickLibrary();
}

} // namespace quelby::app
