// What takes the dashboard's place while the settings are shown: general options, the battery's calibration,
// the helper, and the way out.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "monitor/published_fields.h"
#include "ui/presentation/charge_limit_card.h"
#include "ui/presentation/header.h"

namespace quelby {

struct GeneralSection {
    Symbol symbol;
    Text title;
    Option launchAtLogin;
    Text displayTitle;
    Text displaySubtitle;
    std::array<Choice, allMenuBarDisplays.size()> displays;

    bool operator==(const GeneralSection&) const = default;
};

// How many days lie between two calibrations, in the order of the buttons.
inline constexpr std::array<Int, 4> calibrationIntervals{7, 14, 30, 60};

struct CalibrationSection {
    Symbol symbol;
    Text title;
    Option autoCalibrate;
    Text frequency;
    std::array<Choice, calibrationIntervals.size()> intervals;
    std::vector<Label> dates; // the last and the next calibration, or that there was none

    bool operator==(const CalibrationSection&) const = default;
};

struct HelperSection {
    Symbol symbol;
    Text title;
    Text explanation;
    StatusLine status;
    bool installed = false; // which the button undoes
    Text button;

    bool operator==(const HelperSection&) const = default;
};

struct UninstallSection {
    Symbol symbol;
    Text title;
    Text explanation;
    Label button;

    bool operator==(const UninstallSection&) const = default;
};

struct SettingsPanel {
    Header header;
    GeneralSection general;
    CalibrationSection calibration;
    HelperSection helper;
    UninstallSection uninstall;
    Text version;
    Label quit;

    bool operator==(const SettingsPanel&) const = default;
};

// How the system speaks of a date now, in the user's language: "3 days ago".
using RelativeDate = std::function<std::string(Date date, Date now)>;

[[nodiscard]] SettingsPanel settingsPanel(const PublishedFields& fields, Date now,
                                          const RelativeDate& relativeDate);

[[nodiscard]] GeneralSection generalSection(const PublishedFields& fields);
[[nodiscard]] CalibrationSection calibrationSection(const PublishedFields& fields, Date now,
                                                    const RelativeDate& relativeDate);
[[nodiscard]] HelperSection helperSection(const PublishedFields& fields);
[[nodiscard]] UninstallSection uninstallSection();

} // namespace quelby
