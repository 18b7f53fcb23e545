// The charge limit, the settings and the dialogs as value types of QML, made from the records of the
// presentation.
#pragma once

#include "ui/bridge/card_values.h"
#include "ui/presentation/dialogs.h"
#include "ui/presentation/settings_panel.h"

namespace quelby {

struct SliderValue {
    Q_GADGET
    QML_VALUE_TYPE(sliderContent)
    Q_PROPERTY(qreal value MEMBER value CONSTANT)
    Q_PROPERTY(qreal from MEMBER from CONSTANT)
    Q_PROPERTY(qreal to MEMBER to CONSTANT)
    Q_PROPERTY(qreal step MEMBER step CONSTANT)

public:
    SliderValue() = default;
    explicit SliderValue(const SliderRange& range);

    qreal value = 0;
    qreal from = 0;
    qreal to = 0;
    qreal step = 0;

    bool operator==(const SliderValue&) const = default;
};

struct StopLevelValue {
    Q_GADGET
    QML_VALUE_TYPE(stopLevelContent)
    Q_PROPERTY(QList<quelby::TextValue> stopAt MEMBER stopAt CONSTANT)
    Q_PROPERTY(quelby::SliderValue slider MEMBER slider CONSTANT)
    Q_PROPERTY(QList<quelby::TextValue> scale MEMBER scale CONSTANT)
    Q_PROPERTY(quelby::StatusValue status MEMBER status CONSTANT)

public:
    StopLevelValue() = default;
    explicit StopLevelValue(const StopLevel& level);

    Q_INVOKABLE quelby::TextValue stopAtPart(int index) const { return stopAt.value(index); }

    Q_INVOKABLE quelby::TextValue scaleMark(int index) const { return scale.value(index); }

    QList<TextValue> stopAt;
    SliderValue slider;
    QList<TextValue> scale;
    StatusValue status;

    bool operator==(const StopLevelValue&) const = default;
};

struct HelperOfferValue {
    Q_GADGET
    QML_VALUE_TYPE(helperOfferContent)
    Q_PROPERTY(quelby::TextValue explanation MEMBER explanation CONSTANT)
    Q_PROPERTY(quelby::LabelValue installButton MEMBER installButton CONSTANT)

public:
    HelperOfferValue() = default;
    explicit HelperOfferValue(const HelperOffer& offer);

    TextValue explanation;
    LabelValue installButton;

    bool operator==(const HelperOfferValue&) const = default;
};

struct ChargeLimitValue {
    Q_GADGET
    QML_VALUE_TYPE(chargeLimitContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(bool enabled MEMBER enabled CONSTANT)
    Q_PROPERTY(quelby::TextValue subtitle MEMBER subtitle CONSTANT)
    Q_PROPERTY(bool offersHelper MEMBER offersHelper CONSTANT)
    Q_PROPERTY(quelby::HelperOfferValue offer MEMBER offer CONSTANT)
    Q_PROPERTY(bool hasStopLevel MEMBER hasStopLevel CONSTANT)
    Q_PROPERTY(quelby::StopLevelValue stopLevel MEMBER stopLevel CONSTANT)

public:
    ChargeLimitValue() = default;
    explicit ChargeLimitValue(const ChargeLimitCard& card);

    SymbolValue symbol;
    TextValue title;
    bool enabled = false;
    TextValue subtitle;
    bool offersHelper = false;
    HelperOfferValue offer;
    bool hasStopLevel = false;
    StopLevelValue stopLevel;

    bool operator==(const ChargeLimitValue&) const = default;
};

struct GeneralValue {
    Q_GADGET
    QML_VALUE_TYPE(generalContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(quelby::OptionValue launchAtLogin MEMBER launchAtLogin CONSTANT)
    Q_PROPERTY(quelby::TextValue displayTitle MEMBER displayTitle CONSTANT)
    Q_PROPERTY(quelby::TextValue displaySubtitle MEMBER displaySubtitle CONSTANT)
    Q_PROPERTY(QList<quelby::ChoiceValue> displays MEMBER displays CONSTANT)

public:
    GeneralValue() = default;
    explicit GeneralValue(const GeneralSection& section);

    SymbolValue symbol;
    TextValue title;
    OptionValue launchAtLogin;
    TextValue displayTitle;
    TextValue displaySubtitle;
    QList<ChoiceValue> displays;

    bool operator==(const GeneralValue&) const = default;
};

struct CalibrationValue {
    Q_GADGET
    QML_VALUE_TYPE(calibrationContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(quelby::OptionValue autoCalibrate MEMBER autoCalibrate CONSTANT)
    Q_PROPERTY(quelby::TextValue frequency MEMBER frequency CONSTANT)
    Q_PROPERTY(QList<quelby::ChoiceValue> intervals MEMBER intervals CONSTANT)
    Q_PROPERTY(QList<quelby::LabelValue> dates MEMBER dates CONSTANT)

public:
    CalibrationValue() = default;
    explicit CalibrationValue(const CalibrationSection& section);

    Q_INVOKABLE quelby::LabelValue dateAt(int index) const { return dates.value(index); }

    SymbolValue symbol;
    TextValue title;
    OptionValue autoCalibrate;
    TextValue frequency;
    QList<ChoiceValue> intervals;
    QList<LabelValue> dates;

    bool operator==(const CalibrationValue&) const = default;
};

struct HelperValue {
    Q_GADGET
    QML_VALUE_TYPE(helperContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(quelby::TextValue explanation MEMBER explanation CONSTANT)
    Q_PROPERTY(quelby::StatusValue status MEMBER status CONSTANT)
    Q_PROPERTY(bool installed MEMBER installed CONSTANT)
    Q_PROPERTY(quelby::TextValue button MEMBER button CONSTANT)

public:
    HelperValue() = default;
    explicit HelperValue(const HelperSection& section);

    SymbolValue symbol;
    TextValue title;
    TextValue explanation;
    StatusValue status;
    bool installed = false;
    TextValue button;

    bool operator==(const HelperValue&) const = default;
};

struct UninstallValue {
    Q_GADGET
    QML_VALUE_TYPE(uninstallContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(quelby::TextValue explanation MEMBER explanation CONSTANT)
    Q_PROPERTY(quelby::LabelValue button MEMBER button CONSTANT)

public:
    UninstallValue() = default;
    explicit UninstallValue(const UninstallSection& section);

    SymbolValue symbol;
    TextValue title;
    TextValue explanation;
    LabelValue button;

    bool operator==(const UninstallValue&) const = default;
};

struct SettingsValue {
    Q_GADGET
    QML_VALUE_TYPE(settingsContent)
    Q_PROPERTY(quelby::HeaderValue header MEMBER header CONSTANT)
    Q_PROPERTY(quelby::GeneralValue general MEMBER general CONSTANT)
    Q_PROPERTY(quelby::CalibrationValue calibration MEMBER calibration CONSTANT)
    Q_PROPERTY(quelby::HelperValue helper MEMBER helper CONSTANT)
    Q_PROPERTY(quelby::UninstallValue uninstall MEMBER uninstall CONSTANT)
    Q_PROPERTY(quelby::TextValue version MEMBER version CONSTANT)
    Q_PROPERTY(quelby::LabelValue quit MEMBER quit CONSTANT)

public:
    SettingsValue() = default;
    explicit SettingsValue(const SettingsPanel& panel);

    HeaderValue header;
    GeneralValue general;
    CalibrationValue calibration;
    HelperValue helper;
    UninstallValue uninstall;
    TextValue version;
    LabelValue quit;

    bool operator==(const SettingsValue&) const = default;
};

struct DialogValue {
    Q_GADGET
    QML_VALUE_TYPE(dialogContent)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString message MEMBER message CONSTANT)
    Q_PROPERTY(QString action MEMBER action CONSTANT)
    Q_PROPERTY(bool destructive MEMBER destructive CONSTANT)
    Q_PROPERTY(QString cancel MEMBER cancel CONSTANT)

public:
    DialogValue() = default;
    explicit DialogValue(const Dialog& dialog);

    QString title;
    QString message;
    QString action;
    bool destructive = false;
    QString cancel;

    bool operator==(const DialogValue&) const = default;
};

} // namespace quelby
