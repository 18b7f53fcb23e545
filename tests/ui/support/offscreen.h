#pragma once

#include <QGuiApplication>

#include "support/temporary_folder.h"
#include "ui/view/dashboard_view.h"

namespace quelby {

// Before Qt's application object: no display, no GPU, nobody's desktop, English, times of day by UTC.
class Offscreen {
public:
    Offscreen() {
        qputenv("XDG_RUNTIME_DIR", runtimeFolder_.path().c_str());
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("LC_ALL", "C.UTF-8");
        qputenv("TZ", "UTC0");
        QGuiApplication::setDesktopSettingsAware(false);
        drawWithoutGpu();
    }

private:
    TemporaryFolder runtimeFolder_;
};

} // namespace quelby
