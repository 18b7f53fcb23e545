#pragma once

#include <QImage>

#include "ui/bridge/dashboard_model.h"
#include "ui/view/picture_options.h"

namespace quelby {

// What the dashboard looks like, at rest, without a display. Needs an application object of Qt's.
[[nodiscard]] QImage dashboardPicture(DashboardModel& model, const PictureOptions& options);

} // namespace quelby
