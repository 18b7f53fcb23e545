#include <QCoreApplication>
#include <QLibrary>
#include <fmt/format.h>

#include "app/linux/popover/quick_library.h"
#include "base/version.h"

namespace quelby::app {

namespace {

using VersionOf = const char* (*)();
using Make = QuickLibrary* (*)();

template <typename Function>
Function function(QLibrary& library, const char* name) {
    return reinterpret_cast<Function>(library.resolve(name));
}

} // namespace

// Beside the program where it was built, below lib where it was installed.
Result<std::unique_ptr<QuickLibrary>> loadQuickLibrary() {
    const auto folder = QCoreApplication::applicationDirPath();
    for (const auto* const place : {"/quelby-dashboard.so", "/../lib/quelby/quelby-dashboard.so"}) {
        QLibrary library(folder + QLatin1String(place));
        const auto versionOf = function<VersionOf>(library, "quelbyDashboardVersion");
        const auto make = function<Make>(library, "quelbyMakeDashboard");
        if (versionOf == nullptr || make == nullptr) {
            continue;
        }
        if (versionOf() != version()) {
            return problem(
                fmt::format("the library with the dashboard is of version {} and this program of {}; "
                            "they have to be installed together",
                            versionOf(), version()));
        }
        return std::unique_ptr<QuickLibrary>(make());
    }
    return problem("the library with the dashboard is missing");
}

Result<std::unique_ptr<PicturePainter>> loadPicturePainter() {
    return loadQuickLibrary();
}

} // namespace quelby::app
