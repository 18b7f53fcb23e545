#include "ui/presentation/text/menu_bar_title.h"

#include <cmath>

#include <fmt/format.h>

#include "base/utf8.h"
#include "ui/presentation/text/cycle_line.h"

namespace quelby {

namespace {

constexpr double adapterFloor = 0.1; // W; up to here the adapter's power says nothing

std::string percentTitle(const PublishedFields& fields) {
    return fmt::format(" {}%", fields.batteryPercent.get());
}

std::string wattsTitle(const PublishedFields& fields) {
    if (!fields.isPluggedIn) {
        return fmt::format(" {}{:.0f}W", fields.hasBattery ? "-" : "", fields.totalPower.get());
    }
    if (fields.chargingInhibited) {
        return percentTitle(fields);
    }
    const auto& watts = fields.acTotal > adapterFloor ? fields.acTotal : fields.totalPower;
    return fmt::format(" {:.0f}W", watts.get());
}

std::string_view levelSymbol(Int percent) {
    if (percent >= 76) {
        return "battery.75percent";
    }
    if (percent >= 51) {
        return "battery.50percent";
    }
    return percent >= 26 ? "battery.25percent" : "battery.0percent";
}

} // namespace

std::string_view menuBarSymbol(const PublishedFields& fields) {
    if (!fields.hasBattery) {
        return "desktopcomputer";
    }
    if (fields.isPluggedIn && fields.fullyCharged) {
        return "battery.100percent.bolt";
    }
    if (fields.isPluggedIn && fields.isCharging) {
        return "bolt.fill";
    }
    if (fields.isPluggedIn && fields.chargingInhibited) {
        return "bolt.badge.checkmark.fill";
    }
    return levelSymbol(fields.batteryPercent);
}

std::string menuBarTitle(const PublishedFields& fields, MenuBarDisplay display) {
    switch (display) {
    case MenuBarDisplay::watts:
        return wattsTitle(fields);
    case MenuBarDisplay::percentage:
        return percentTitle(fields);
    case MenuBarDisplay::mA:
        return fmt::format(" {:.0f} mA", std::fabs(fields.amperage));
    case MenuBarDisplay::voltage:
        return fmt::format(" {:.2f}V", fields.voltage.get());
    case MenuBarDisplay::temperature:
        return fmt::format(" {:.1f}°C", fields.batteryTemp.get());
    case MenuBarDisplay::iconOnly:
        return {};
    }
    return {};
}

std::string menuBarToolTip(const PublishedFields& fields) {
    return printable(fmt::format("{}, {:.1f} W", batteryText(fields), fields.totalPower.get()));
}

std::string statusBarToolTip(const PublishedFields& fields) {
    return fmt::format("{}, CPU {:.1f} %", menuBarToolTip(fields), fields.cpuUsage.get());
}

} // namespace quelby
