#pragma once

#include <memory>

#include <QImage>

#include "base/problem.h"
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

// The problem is that a part of the program is missing or of another version, as in a damaged installation.
[[nodiscard]] Result<std::unique_ptr<PicturePainter>> loadPicturePainter();

} // namespace quelby::app
