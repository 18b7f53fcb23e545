#include "ui/bridge/card_values.h"

namespace quelby {

namespace {

// Seconds since 1970-01-01 00:00 UTC, and watts.
QList<QPointF> pointsOf(const std::vector<HistoryDataPoint>& data) {
    QList<QPointF> points;
    points.reserve(static_cast<qsizetype>(data.size()));
    for (const auto& point : data) {
        points.append({point.date(), point.watts});
    }
    return points;
}

} // namespace

HeaderValue::HeaderValue(const Header& header)
    : symbol(header.symbol), title(header.title), clock(header.clock), toggle(header.toggle) {}

PowerBadgeValue::PowerBadgeValue(const PowerBadge& badge)
    : symbol(badge.symbol)
    , sign(badge.sign)
    , figure(badge.figure)
    , unit(badge.unit)
    , caption(badge.caption)
    , extra(valuesOf<LabelValue>(badge.extra)) {}

BatteryValue::BatteryValue(const BatteryCard& card)
    : symbol(card.symbol)
    , title(card.title)
    , level(card.level)
    , bar(card.bar)
    , rate(card.rate)
    , time(card.time)
    , health(card.health) {}

ComponentRowValue::ComponentRowValue(const ComponentRow& row)
    : label(row.label), bar(row.bar), figure(row.figure), detail(row.detail) {}

ComponentsValue::ComponentsValue(const ComponentCard& card)
    : title(card.title), rows(valuesOf<ComponentRowValue>(card.rows)), total(card.total) {}

ProcessRowValue::ProcessRowValue(const ProcessRow& row)
    : position(row.position), name(row.name), cpu(row.cpu), watts(row.watts) {}

ProcessesValue::ProcessesValue(const ProcessCard& card)
    : symbol(card.symbol)
    , title(card.title)
    , placeholder(card.placeholder)
    , rows(valuesOf<ProcessRowValue>(card.rows)) {}

TrendValue::TrendValue(const TrendCard& card)
    : symbol(card.symbol)
    , title(card.title)
    , now(card.now)
    , samples(QList<qreal>(card.samples.begin(), card.samples.end()))
    , min(card.min)
    , avg(card.avg)
    , max(card.max) {}

StatBadgeValue::StatBadgeValue(const StatBadge& badge) : label(badge.label), value(badge.value) {}

HistoryValue::HistoryValue(const HistoryCard& card)
    : symbol(card.symbol)
    , title(card.title)
    , today(card.today)
    , ranges(valuesOf<ChoiceValue>(card.ranges))
    , collecting(card.placeholder.has_value())
    , placeholder(card.placeholder.value_or(Label{}))
    , points(pointsOf(card.points))
    , badges(valuesOf<StatBadgeValue>(card.badges)) {}

EfficiencyValue::EfficiencyValue(const EfficiencyCard& card)
    : symbol(card.symbol)
    , title(card.title)
    , score(card.score)
    , outOf(card.outOf)
    , stars(qString(card.stars))
    , rating(card.rating)
    , advice(card.advice) {}

DetailRowValue::DetailRowValue(const DetailRow& row)
    : symbol(row.symbol), label(row.label), value(row.value), note(row.note) {}

DetailsValue::DetailsValue(const BatteryDetailsCard& card)
    : symbol(card.symbol), title(card.title), rows(valuesOf<DetailRowValue>(card.rows)) {}

} // namespace quelby
