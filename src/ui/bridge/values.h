// The records of the presentation as value types of QML.
#pragma once

#include "ui/bridge/record_value.h"
#include "ui/presentation/cards/dialogs.h"
#include "ui/presentation/cards/settings_panel.h"
#include "ui/presentation/dashboard.h"
#include "ui/presentation/energy/energy_panel.h"

namespace quelby {

// The names of the colours, for QML: those of ColorName, in its order.
namespace Ink { // NOLINT(readability-identifier-naming): types of QML begin with a capital
Q_NAMESPACE
QML_NAMED_ELEMENT(Ink)

enum Name { Primary, Secondary, Green, Yellow, Orange, Red, Blue, Purple, Cyan, Accent, White };
Q_ENUM_NS(Name)
} // namespace Ink

struct ColorValue {
    Q_GADGET
    QML_VALUE_TYPE(ink)
    Q_PROPERTY(quelby::Ink::Name name READ name CONSTANT)
    Q_PROPERTY(qreal opacity READ opacity CONSTANT)

public:
    ColorValue() = default;

    explicit ColorValue(Color color) : color_(color) {}

    explicit ColorValue(const SharedRecord<Color>& color) : color_(*color) {}

    [[nodiscard]] Ink::Name name() const { return static_cast<Ink::Name>(color_.name); }

    [[nodiscard]] qreal opacity() const { return color_.opacity; } // 0 to 1

    const Color& operator*() const { return color_; }

    bool operator==(const ColorValue&) const = default;

private:
    Color color_;
};

struct BarValue {
    QUELBY_VALUE_BODY(Bar, inkedBar)
    Q_PROPERTY(QString percent READ percent CONSTANT) // the fraction in words

    [[nodiscard]] QString percent() const { return qString(percentText(*record_)); }
};

QUELBY_VALUE(Text, inkedText)
QUELBY_VALUE(Symbol, inkedSymbol)
QUELBY_VALUE(Label, inkedLabel)
QUELBY_VALUE(Option, oneOption)
QUELBY_VALUE(Choice, oneChoice)
QUELBY_VALUE(StatusLine, statusLine)
QUELBY_VALUE(SliderRange, sliderContent)
QUELBY_VALUE(StatBadge, statBadgeContent)
QUELBY_VALUE(ComponentRow, componentRowContent)
QUELBY_VALUE(ProcessRow, processRowContent)
QUELBY_VALUE(DetailRow, detailRowContent)

QUELBY_LIST(Text, inkedTexts)
QUELBY_LIST(Label, inkedLabels)
QUELBY_LIST(Choice, choiceList)
QUELBY_LIST(StatBadge, statBadges)
QUELBY_LIST(ComponentRow, componentRows)
QUELBY_LIST(ProcessRow, processRows)
QUELBY_LIST(DetailRow, detailRows)

QUELBY_SERIES(Watts, wattsSeries)
QUELBY_SERIES(HistoryDataPoint, historySeries)

QUELBY_VALUE(Header, headerContent)
QUELBY_VALUE(HelperOffer, helperOfferContent)

struct StopLevelValue {
    QUELBY_VALUE_BODY(StopLevel, stopLevelContent)

    // Where a text of the scale belongs: 0 at the slider's beginning to 1 at its end.
    Q_INVOKABLE double scalePosition(int index) const {
        const bool exists = index >= 0 && static_cast<std::size_t>(index) < scaleLevels.size();
        return exists ? positionOnSlider(scaleLevels[static_cast<std::size_t>(index)]) : 0;
    }
};

QUELBY_VALUE(ChargeLimitCard, chargeLimitContent)
QUELBY_VALUE(PowerBadge, powerBadgeContent)
QUELBY_VALUE(BatteryCard, batteryContent)
QUELBY_VALUE(ComponentCard, componentsContent)
QUELBY_VALUE(ProcessCard, processesContent)
QUELBY_VALUE(TrendCard, trendContent)
QUELBY_VALUE(HistoryCard, historyContent)
QUELBY_VALUE(EfficiencyCard, efficiencyContent)
QUELBY_VALUE(BatteryDetailsCard, detailsContent)

QUELBY_VALUE(DisplayChoice, displayChoice)
QUELBY_VALUE(GeneralSection, generalContent)
QUELBY_VALUE(FrequencyChoice, frequencyChoice)
QUELBY_VALUE(CalibrationSection, calibrationContent)
QUELBY_VALUE(HelperSection, helperContent)
QUELBY_VALUE(UninstallSection, uninstallContent)
QUELBY_VALUE(SettingsPanel, settingsContent)
QUELBY_VALUE(Dialog, dialogContent)

QUELBY_VALUE(EnergyRow, energyRowContent)
QUELBY_VALUE(PastRow, pastRowContent)
QUELBY_LIST(EnergyRow, energyRows)
QUELBY_LIST(PastRow, pastRows)
QUELBY_SERIES(HealthPoint, healthSeries)
QUELBY_VALUE(EnergyUse, energyUseContent)
QUELBY_VALUE(PastSection, pastContent)
QUELBY_VALUE(AgeingSection, ageingContent)
QUELBY_VALUE(EnergyPanel, energyContent)

} // namespace quelby
