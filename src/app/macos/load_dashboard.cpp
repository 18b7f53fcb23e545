#include "app/picture_painter.h"
#include "ui/view/dashboard_picture.h"
#include "ui/view/dashboard_view.h"

namespace quelby::app {

namespace {

// The dashboard is part of the program here.
class BuiltInPainter final : public PicturePainter {
public:
    BuiltInPainter() { drawWithoutGpu(); }

    [[nodiscard]] QImage picture(std::shared_ptr<PowerMonitor> monitor, Clock& clock,
                                 const PictureOptions& options) override {
        DashboardModel model(std::move(monitor), clock, {.quit = [] {}, .openBatterySettings = [] {}});
        return dashboardPicture(model, options);
    }
};

} // namespace

Result<std::unique_ptr<PicturePainter>> loadPicturePainter() {
    return std::make_unique<BuiltInPainter>();
}

} // namespace quelby::app
