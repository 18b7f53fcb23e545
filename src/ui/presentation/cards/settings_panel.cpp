#include "ui/presentation/cards/settings_panel.h"

#include <fmt/format.h>

#include "base/version.h"
#include "ui/presentation/text/words.h"

namespace quelby {

namespace {

constexpr double secondsPerDay = 24 * 60 * 60;

const char* shortLabel(MenuBarDisplay display) {
    switch (display) {
    case MenuBarDisplay::watts:
        return "Watts";
    case MenuBarDisplay::percentage:
        return "Battery%";
    case MenuBarDisplay::mA:
        return "mA";
    case MenuBarDisplay::voltage:
        return "Volts";
    case MenuBarDisplay::temperature:
        return "Temp";
    case MenuBarDisplay::iconOnly:
        return "Icon";
    }
    return "";
}

Choice calibrationButton(const char* label, Int days, Int chosenDays) {
    return {label, days == chosenDays};
}

std::vector<Label> calibrationDates(const PublishedFields& fields, Date now,
                                    const RelativeDate& relativeDate) {
    const auto& last = fields.lastCalibrationDate.get();
    if (!last) {
        return {{{"info.circle", ColorName::secondary},
                 secondary("First calibration will start when charge limit is active")}};
    }
    const auto next = *last + static_cast<double>(fields.calibrationIntervalDays.get()) * secondsPerDay;
    return {{{"checkmark.circle", ColorName::green},
             secondary(fmt::format("Last: {}", relativeDate(*last, now)))},
            {{"clock", ColorName::blue}, secondary(fmt::format("Next: {}", relativeDate(next, now)))}};
}

} // namespace

GeneralSection generalSection(const PublishedFields& fields) {
    GeneralSection section{
        .symbol = {"gearshape", ColorName::primary},
        .title = primary("General"),
        .launchAtLogin = {primary("Launch at Login"), secondary("Start Quelby when you log in"),
                          fields.launchAtLogin},
        .menuBarDisplay = {primary("Menu Bar Display"), secondary("Choose what to show next to the icon")}};
    for (const auto display : allMenuBarDisplays) {
        section.menuBarDisplay.choices.push_back(
            {shortLabel(display), display == fields.menuBarDisplay.get()});
    }
    return section;
}

CalibrationSection calibrationSection(const PublishedFields& fields, Date now,
                                      const RelativeDate& relativeDate) {
    const auto days = fields.calibrationIntervalDays.get();
    return {.symbol = {"arrow.triangle.2.circlepath", ColorName::primary},
            .title = primary("Battery Calibration"),
            .autoCalibrate = {primary("Auto Calibrate"),
                              secondary("Periodically charge to 100% to calibrate the battery gauge"),
                              fields.calibrationEnabled},
            .frequency = {primary("Frequency"),
                          {calibrationButton("1 Week", calibrationIntervals[0], days),
                           calibrationButton("2 Weeks", calibrationIntervals[1], days),
                           calibrationButton("1 Month", calibrationIntervals[2], days),
                           calibrationButton("2 Months", calibrationIntervals[3], days)}},
            .dates = calibrationDates(fields, now, relativeDate)};
}

HelperSection helperSection(const PublishedFields& fields) {
    const bool installed = fields.daemonInstalled;
    return {.symbol = {"wrench.and.screwdriver", ColorName::primary},
            .title = primary("Charge Helper"),
            .explanation = secondary("The helper runs in the background to control charging without repeated "
                                     "password prompts. Admin password required once for install/uninstall."),
            .status = {installed ? ColorName::green : ColorName::red,
                       primary(installed ? "Helper installed & running" : "Helper not installed")},
            .installed = installed,
            .button = primary(installed ? "Uninstall" : "Install"),
            .update = fields.helperOutdated ? std::optional(helperUpdate()) : std::nullopt};
}

UninstallSection uninstallSection() {
    return {.symbol = {"trash", ColorName::primary},
            .title = primary("Uninstall"),
            .explanation = secondary("Remove Quelby completely: helper, app, settings, and history data."),
            .button = {{"trash.fill", ColorName::primary}, primary("Uninstall Quelby")}};
}

SettingsPanel settingsPanel(const PublishedFields& fields, Date now, const RelativeDate& relativeDate) {
    return {.header = settingsHeader(),
            .general = generalSection(fields),
            .calibration = calibrationSection(fields, now, relativeDate),
            .helper = helperSection(fields),
            .uninstall = uninstallSection(),
            .version = secondary(fmt::format("{} v{}", words::program, shortVersion())),
            .quit = quitButton()};
}

} // namespace quelby
