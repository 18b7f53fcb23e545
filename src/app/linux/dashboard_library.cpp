// What the library with the dashboard offers to the program.

#include <QtGlobal>

#include "app/linux/dashboard_library.h"
#include "app/linux/popover_window.h"
#include "ui/view/dashboard_picture.h"
#include "ui/view/dashboard_view.h"

namespace quelby::app {

namespace {

class QuickDashboard final : public DashboardLibrary {
public:
    QuickDashboard() { drawWithoutGpu(); }

    [[nodiscard]] std::unique_ptr<DashboardWindow> makeWindow(const DashboardWindowParts& parts,
                                                              PopoverForm form,
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

extern "C" Q_DECL_EXPORT quelby::app::DashboardLibrary* quelbyMakeDashboard() {
    return new quelby::app::QuickDashboard; // the caller's
}
