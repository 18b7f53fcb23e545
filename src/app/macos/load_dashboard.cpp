#include "app/dashboard_painter.h"
#include "ui/view/dashboard_picture.h"
#include "ui/view/dashboard_view.h"

namespace quelby::app {

namespace {

// The dashboard is part of the program here.
class BuiltInDashboard final : public DashboardPainter {
public:
    BuiltInDashboard() { drawWithoutGpu(); }

    [[nodiscard]] QImage picture(std::shared_ptr<PowerMonitor> monitor, Clock& clock,
                                 const PictureOptions& options) override {
        DashboardModel model(std::move(monitor), clock, {.quit = [] {}, .openBatterySettings = [] {}});
        return dashboardPicture(model, options);
    }
};

} // namespace

std::unique_ptr<DashboardPainter> loadDashboardPainter() {
    return std::make_unique<BuiltInDashboard>();
}

} // namespace quelby::app
