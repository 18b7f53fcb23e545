// The cards of the dashboard as value types of QML, made from the records of the presentation.
//
// A row of a list that can become shorter is asked for by its index: what shows the last row hears of the
// shorter list before it goes. Beyond the end there is an empty row.
#pragma once

#include <QPointF>

#include "ui/bridge/element_values.h"
#include "ui/presentation/dashboard.h"

namespace quelby {

struct HeaderValue {
    Q_GADGET
    QML_VALUE_TYPE(headerContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(quelby::TextValue clock MEMBER clock CONSTANT)
    Q_PROPERTY(quelby::SymbolValue toggle MEMBER toggle CONSTANT)

public:
    HeaderValue() = default;
    explicit HeaderValue(const Header& header);

    SymbolValue symbol;
    TextValue title;
    TextValue clock;
    SymbolValue toggle;

    bool operator==(const HeaderValue&) const = default;
};

struct PowerBadgeValue {
    Q_GADGET
    QML_VALUE_TYPE(powerBadgeContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue sign MEMBER sign CONSTANT)
    Q_PROPERTY(quelby::TextValue figure MEMBER figure CONSTANT)
    Q_PROPERTY(quelby::TextValue unit MEMBER unit CONSTANT)
    Q_PROPERTY(quelby::TextValue caption MEMBER caption CONSTANT)
    Q_PROPERTY(QList<quelby::LabelValue> extra MEMBER extra CONSTANT)

public:
    PowerBadgeValue() = default;
    explicit PowerBadgeValue(const PowerBadge& badge);

    Q_INVOKABLE quelby::LabelValue extraAt(int index) const { return extra.value(index); }

    SymbolValue symbol;
    TextValue sign;
    TextValue figure;
    TextValue unit;
    TextValue caption;
    QList<LabelValue> extra;

    bool operator==(const PowerBadgeValue&) const = default;
};

struct BatteryValue {
    Q_GADGET
    QML_VALUE_TYPE(batteryContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(quelby::TextValue level MEMBER level CONSTANT)
    Q_PROPERTY(quelby::BarValue bar MEMBER bar CONSTANT)
    Q_PROPERTY(quelby::TextValue rate MEMBER rate CONSTANT)
    Q_PROPERTY(quelby::LabelValue time MEMBER time CONSTANT)
    Q_PROPERTY(quelby::LabelValue health MEMBER health CONSTANT)

public:
    BatteryValue() = default;
    explicit BatteryValue(const BatteryCard& card);

    SymbolValue symbol;
    TextValue title;
    TextValue level;
    BarValue bar;
    TextValue rate;
    LabelValue time;
    LabelValue health;

    bool operator==(const BatteryValue&) const = default;
};

struct ComponentRowValue {
    Q_GADGET
    QML_VALUE_TYPE(componentRowContent)
    Q_PROPERTY(quelby::TextValue label MEMBER label CONSTANT)
    Q_PROPERTY(quelby::BarValue bar MEMBER bar CONSTANT)
    Q_PROPERTY(quelby::TextValue figure MEMBER figure CONSTANT)
    Q_PROPERTY(quelby::TextValue detail MEMBER detail CONSTANT)

public:
    ComponentRowValue() = default;
    explicit ComponentRowValue(const ComponentRow& row);

    TextValue label;
    BarValue bar;
    TextValue figure;
    TextValue detail;

    bool operator==(const ComponentRowValue&) const = default;
};

struct ComponentsValue {
    Q_GADGET
    QML_VALUE_TYPE(componentsContent)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(QList<quelby::ComponentRowValue> rows MEMBER rows CONSTANT)
    Q_PROPERTY(quelby::ComponentRowValue total MEMBER total CONSTANT)

public:
    ComponentsValue() = default;
    explicit ComponentsValue(const ComponentCard& card);

    TextValue title;
    QList<ComponentRowValue> rows;
    ComponentRowValue total;

    bool operator==(const ComponentsValue&) const = default;
};

struct ProcessRowValue {
    Q_GADGET
    QML_VALUE_TYPE(processRowContent)
    Q_PROPERTY(quelby::TextValue position MEMBER position CONSTANT)
    Q_PROPERTY(quelby::TextValue name MEMBER name CONSTANT)
    Q_PROPERTY(quelby::TextValue cpu MEMBER cpu CONSTANT)
    Q_PROPERTY(quelby::TextValue watts MEMBER watts CONSTANT)

public:
    ProcessRowValue() = default;
    explicit ProcessRowValue(const ProcessRow& row);

    TextValue position;
    TextValue name;
    TextValue cpu;
    TextValue watts;

    bool operator==(const ProcessRowValue&) const = default;
};

struct ProcessesValue {
    Q_GADGET
    QML_VALUE_TYPE(processesContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(quelby::TextValue placeholder MEMBER placeholder CONSTANT)
    Q_PROPERTY(QList<quelby::ProcessRowValue> rows MEMBER rows CONSTANT)

public:
    ProcessesValue() = default;
    explicit ProcessesValue(const ProcessCard& card);

    Q_INVOKABLE quelby::ProcessRowValue rowAt(int index) const { return rows.value(index); }

    SymbolValue symbol;
    TextValue title;
    TextValue placeholder;
    QList<ProcessRowValue> rows;

    bool operator==(const ProcessesValue&) const = default;
};

struct TrendValue {
    Q_GADGET
    QML_VALUE_TYPE(trendContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(quelby::TextValue now MEMBER now CONSTANT)
    Q_PROPERTY(QList<qreal> samples MEMBER samples CONSTANT)
    Q_PROPERTY(quelby::TextValue min MEMBER min CONSTANT)
    Q_PROPERTY(quelby::TextValue avg MEMBER avg CONSTANT)
    Q_PROPERTY(quelby::TextValue max MEMBER max CONSTANT)

public:
    TrendValue() = default;
    explicit TrendValue(const TrendCard& card);

    SymbolValue symbol;
    TextValue title;
    TextValue now;
    QList<qreal> samples;
    TextValue min;
    TextValue avg;
    TextValue max;

    bool operator==(const TrendValue&) const = default;
};

struct StatBadgeValue {
    Q_GADGET
    QML_VALUE_TYPE(statBadgeContent)
    Q_PROPERTY(quelby::TextValue label MEMBER label CONSTANT)
    Q_PROPERTY(quelby::TextValue value MEMBER value CONSTANT)

public:
    StatBadgeValue() = default;
    explicit StatBadgeValue(const StatBadge& badge);

    TextValue label;
    TextValue value;

    bool operator==(const StatBadgeValue&) const = default;
};

struct HistoryValue {
    Q_GADGET
    QML_VALUE_TYPE(historyContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(quelby::TextValue today MEMBER today CONSTANT)
    Q_PROPERTY(QList<quelby::ChoiceValue> ranges MEMBER ranges CONSTANT)
    Q_PROPERTY(bool collecting MEMBER collecting CONSTANT)
    Q_PROPERTY(quelby::LabelValue placeholder MEMBER placeholder CONSTANT)
    Q_PROPERTY(QList<QPointF> points MEMBER points CONSTANT)
    Q_PROPERTY(QList<quelby::StatBadgeValue> badges MEMBER badges CONSTANT)

public:
    HistoryValue() = default;
    explicit HistoryValue(const HistoryCard& card);

    SymbolValue symbol;
    TextValue title;
    TextValue today;
    QList<ChoiceValue> ranges;
    bool collecting = false;
    LabelValue placeholder;
    QList<QPointF> points;
    QList<StatBadgeValue> badges;

    bool operator==(const HistoryValue&) const = default;
};

struct EfficiencyValue {
    Q_GADGET
    QML_VALUE_TYPE(efficiencyContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(quelby::TextValue score MEMBER score CONSTANT)
    Q_PROPERTY(quelby::TextValue outOf MEMBER outOf CONSTANT)
    Q_PROPERTY(QString stars MEMBER stars CONSTANT)
    Q_PROPERTY(quelby::TextValue rating MEMBER rating CONSTANT)
    Q_PROPERTY(quelby::LabelValue advice MEMBER advice CONSTANT)

public:
    EfficiencyValue() = default;
    explicit EfficiencyValue(const EfficiencyCard& card);

    SymbolValue symbol;
    TextValue title;
    TextValue score;
    TextValue outOf;
    QString stars;
    TextValue rating;
    LabelValue advice;

    bool operator==(const EfficiencyValue&) const = default;
};

struct DetailRowValue {
    Q_GADGET
    QML_VALUE_TYPE(detailRowContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue label MEMBER label CONSTANT)
    Q_PROPERTY(quelby::TextValue value MEMBER value CONSTANT)
    Q_PROPERTY(quelby::TextValue note MEMBER note CONSTANT)

public:
    DetailRowValue() = default;
    explicit DetailRowValue(const DetailRow& row);

    SymbolValue symbol;
    TextValue label;
    TextValue value;
    TextValue note;

    bool operator==(const DetailRowValue&) const = default;
};

struct DetailsValue {
    Q_GADGET
    QML_VALUE_TYPE(detailsContent)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(QList<quelby::DetailRowValue> rows MEMBER rows CONSTANT)

public:
    DetailsValue() = default;
    explicit DetailsValue(const BatteryDetailsCard& card);

    Q_INVOKABLE quelby::DetailRowValue rowAt(int index) const { return rows.value(index); }

    SymbolValue symbol;
    TextValue title;
    QList<DetailRowValue> rows;

    bool operator==(const DetailsValue&) const = default;
};

} // namespace quelby
