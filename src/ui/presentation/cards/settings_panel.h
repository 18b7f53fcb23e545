// What takes the dashboard's place while the settings are shown: general options, the battery's calibration,
// the helper, and the way out.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "monitor/published_fields.h"
#include "ui/presentation/cards/charge_limit_card.h"
#include "ui/presentation/cards/header.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_DisplayChoice(MEMBER)                                                              \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(part, Text, subtitle)                                                                             \
    MEMBER(list, Choice, choices) /* one for each MenuBarDisplay */

struct DisplayChoice {
    QUELBY_RECORD(DisplayChoice)
};

#define QUELBY_MEMBERS_OF_GeneralSection(MEMBER)                                                             \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(part, Option, launchAtLogin)                                                                      \
    MEMBER(part, DisplayChoice, menuBarDisplay)

struct GeneralSection {
    QUELBY_RECORD(GeneralSection)
};

// How many days lie between two calibrations, in the order of the buttons.
inline constexpr std::array<Int, 4> calibrationIntervals{7, 14, 30, 60};

#define QUELBY_MEMBERS_OF_FrequencyChoice(MEMBER)                                                            \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(list, Choice, choices) /* one for each of the intervals */

struct FrequencyChoice {
    QUELBY_RECORD(FrequencyChoice)
};

#define QUELBY_MEMBERS_OF_CalibrationSection(MEMBER)                                                         \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(part, Option, autoCalibrate)                                                                      \
    MEMBER(part, FrequencyChoice, frequency)                                                                 \
    MEMBER(list, Label, dates) /* the last and the next calibration, or that there was none */

struct CalibrationSection {
    QUELBY_RECORD(CalibrationSection)
};

#define QUELBY_MEMBERS_OF_HelperSection(MEMBER)                                                              \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(part, Text, explanation)                                                                          \
    MEMBER(part, StatusLine, status)                                                                         \
    MEMBER(plain, bool, installed) /* which the button undoes */                                             \
    MEMBER(part, Text, button)                                                                               \
    MEMBER(optional, HelperOffer, update) /* while it is another version's */

struct HelperSection {
    QUELBY_RECORD(HelperSection)
};

#define QUELBY_MEMBERS_OF_UninstallSection(MEMBER)                                                           \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(part, Text, explanation)                                                                          \
    MEMBER(part, Label, button)

struct UninstallSection {
    QUELBY_RECORD(UninstallSection)
};

#define QUELBY_MEMBERS_OF_SettingsPanel(MEMBER)                                                              \
    MEMBER(part, Header, header)                                                                             \
    MEMBER(part, GeneralSection, general)                                                                    \
    MEMBER(part, CalibrationSection, calibration)                                                            \
    MEMBER(part, HelperSection, helper)                                                                      \
    MEMBER(part, UninstallSection, uninstall)                                                                \
    MEMBER(part, Text, version)                                                                              \
    MEMBER(part, Label, quit)

struct SettingsPanel {
    QUELBY_RECORD(SettingsPanel)
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
