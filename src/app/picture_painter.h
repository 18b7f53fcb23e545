#pragma once

#include <memory>

#include <QImage>

#include "monitor/power_monitor.h"
#include "ui/view/picture_options.h"

namespace quelby::app {

class PicturePainter {
public:
    virtual ~PicturePainter() = default;

    // What the dashboard looks like, at rest, without a display.
    [[nodiscard]] virtual QImage picture(std::shared_ptr<PowerMonitor> monitor, Clock& clock,
                                         const PictureOptions& options) = 0;
};

// Null where a part of the program is missing, as it is in a damaged installation only.
[[nodiscard]] std::unique_ptr<PicturePainter> loadPicturePainter();

} // namespace quelby::app
