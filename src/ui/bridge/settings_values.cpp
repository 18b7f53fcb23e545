#include "ui/bridge/settings_values.h"

namespace quelby {

SliderValue::SliderValue(const SliderRange& range)
    : value(range.value), from(range.from), to(range.to), step(range.step) {}

StopLevelValue::StopLevelValue(const StopLevel& level)
    : stopAt(valuesOf<TextValue>(level.stopAt))
    , slider(level.slider)
    , scale(valuesOf<TextValue>(level.scale))
    , status(level.status) {}

HelperOfferValue::HelperOfferValue(const HelperOffer& offer)
    : explanation(offer.explanation), installButton(offer.installButton) {}

ChargeLimitValue::ChargeLimitValue(const ChargeLimitCard& card)
    : symbol(card.symbol)
    , title(card.title)
    , enabled(card.enabled)
    , subtitle(card.subtitle)
    , offersHelper(card.offer.has_value())
    , offer(card.offer.value_or(HelperOffer{}))
    , hasStopLevel(card.stopLevel.has_value())
    , stopLevel(card.stopLevel.value_or(StopLevel{})) {}

GeneralValue::GeneralValue(const GeneralSection& section)
    : symbol(section.symbol)
    , title(section.title)
    , launchAtLogin(section.launchAtLogin)
    , displayTitle(section.displayTitle)
    , displaySubtitle(section.displaySubtitle)
    , displays(valuesOf<ChoiceValue>(section.displays)) {}

CalibrationValue::CalibrationValue(const CalibrationSection& section)
    : symbol(section.symbol)
    , title(section.title)
    , autoCalibrate(section.autoCalibrate)
    , frequency(section.frequency)
    , intervals(valuesOf<ChoiceValue>(section.intervals))
    , dates(valuesOf<LabelValue>(section.dates)) {}

HelperValue::HelperValue(const HelperSection& section)
    : symbol(section.symbol)
    , title(section.title)
    , explanation(section.explanation)
    , status(section.status)
    , installed(section.installed)
    , button(section.button) {}

UninstallValue::UninstallValue(const UninstallSection& section)
    : symbol(section.symbol)
    , title(section.title)
    , explanation(section.explanation)
    , button(section.button) {}

SettingsValue::SettingsValue(const SettingsPanel& panel)
    : header(panel.header)
    , general(panel.general)
    , calibration(panel.calibration)
    , helper(panel.helper)
    , uninstall(panel.uninstall)
    , version(panel.version)
    , quit(panel.quit) {}

DialogValue::DialogValue(const Dialog& dialog)
    : title(qString(dialog.title))
    , message(qString(dialog.message))
    , action(qString(dialog.action))
    , destructive(dialog.destructive)
    , cancel(qString(dialog.cancel)) {}

} // namespace quelby
