// What the library with the dashboard offers to the program.

#include <QtGlobal>

#include "app/linux/popover/popover_window.h"
#include "app/linux/popover/quick_library.h"
#include "base/version.h"
#include "ui/view/dashboard_picture.h"
#include "ui/view/dashboard_view.h"

namespace quelby::app {

namespace {

class LoadedQuickLibrary final : public QuickLibrary {
public:
    LoadedQuickLibrary() { drawWithoutGpu(); }

    [[nodiscard]] std::unique_ptr<DashboardWindow> makeWindow(const PopoverParts& parts, PopoverForm form,
                                                              DashboardWindow::Listener listener) override {
        return std::make_unique<PopoverWindow>(parts, form, std::move(listener));
    }

    [[nodiscard]] QImage picture(std::shared_ptr<PowerMonitor> monitor, Clock& clock,
                                 const PictureOptions& options) override {
        DashboardModel model(std::move(monitor), clock, {.quit = [] {}, .openBatterySettings = [] {}});
        return dashboardPicture(model, options);
    }
};

} // namespace

} // namespace quelby::app

extern "C" Q_DECL_EXPORT const char* quelbyDashboardVersion() {
    return quelby::version().data(); // of a literal, so that a zero follows
}

extern "C" Q_DECL_EXPORT quelby::app::QuickLibrary* quelbyMakeDashboard() {
    return new quelby::app::LoadedQuickLibrary; // owned by the caller
}
