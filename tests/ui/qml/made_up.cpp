#include "ui/qml/made_up.h"

#include <algorithm>

#include <QStringList>

namespace quelby {

namespace {

QStringList qStrings(const std::vector<std::string>& texts) {
    QStringList strings;
    std::transform(texts.begin(), texts.end(), std::back_inserter(strings), &QString::fromStdString);
    return strings;
}

void assign(Published<std::string>& field, const QVariant& value) {
    field = value.toString().toStdString();
}

void assign(Published<Int>& field, const QVariant& value) {
    field = value.toLongLong();
}

void assign(Published<TimeRange>& field, const QVariant& value) {
    field = timeRange(value.toString().toStdString()).value();
}

void assign(Published<MenuBarDisplay>& field, const QVariant& value) {
    field = menuBarDisplay(value.toString().toStdString()).value();
}

void assign(Published<std::optional<Date>>& field, const QVariant& value) {
    field = value.isNull() ? std::nullopt : std::optional(value.toDouble());
}

void assign(Published<std::vector<double>>& field, const QVariant& value) {
    std::vector<double> numbers;
    for (const auto& number : value.toList()) {
        numbers.push_back(number.toDouble());
    }
    field = std::move(numbers);
}

void assign(Published<std::vector<HistoryDataPoint>>& field, const QVariant& value) {
    std::vector<HistoryDataPoint> points;
    for (const auto& point : value.toList()) {
        points.push_back({point.toList().value(0).toLongLong(), point.toList().value(1).toDouble()});
    }
    field = std::move(points);
}

void assign(Published<std::vector<ProcessInfo_Energy>>& field, const QVariant& value) {
    std::vector<ProcessInfo_Energy> processes;
    for (const auto& process : value.toList()) {
        const auto row = process.toList();
        processes.push_back(
            {row.value(0).toString().toStdString(), row.value(1).toDouble(), row.value(2).toDouble()});
    }
    field = std::move(processes);
}

template <typename T>
void assign(Published<T>& field, const QVariant& value) {
    field = value.value<T>();
}

QVariant variant(Int value) {
    return QVariant::fromValue<qlonglong>(value);
}

QVariant variant(const std::string& value) {
    return QString::fromStdString(value);
}

QVariant variant(TimeRange value) {
    return qString(rawValue(value));
}

QVariant variant(MenuBarDisplay value) {
    return qString(rawValue(value));
}

QVariant variant(double value) {
    return value;
}

QVariant variant(bool value) {
    return value;
}

// Of the rest no test asks.
template <typename T>
QVariant variant(const T& /*value*/) {
    return {};
}

} // namespace

MadeUp::MadeUp() {
    dashboard_.computer.folders.helperResources = "/somewhere";
    dashboard_.model.setReadOut(true); // so that tests see every card, wherever it is
}

QStringList MadeUp::scripts() const {
    return qStrings(dashboard_.computer.installer.wishes);
}

QStringList MadeUp::loginWishes() const {
    return qStrings(dashboard_.computer.login.wishes);
}

QString MadeUp::config() const {
    return QString::fromStdString(dashboard_.computer.helper.configText.value_or(""));
}

void MadeUp::fill() {
    fillEveryCard(*dashboard_.monitor);
}

bool MadeUp::set(const QString& name, const QVariant& value) {
    bool found = false;
    forEachField(static_cast<PublishedFields&>(*dashboard_.monitor), [&](FieldName field, auto& published) {
        if (name == qString(field.name)) {
            assign(published, value);
            found = true;
        }
    });
    return found;
}

void MadeUp::setHelperOutdated(bool outdated) {
    auto& monitor = *dashboard_.monitor;
    monitor.helperOutdated = outdated;
    monitor.daemonInstalled = bool(monitor.daemonInstalled); // which is what observers hear of
}

QVariant MadeUp::field(const QString& name) const {
    QVariant value;
    forEachField(static_cast<const PublishedFields&>(*dashboard_.monitor),
                 [&](FieldName field, const auto& published) {
                     if (name == qString(field.name)) {
                         value = variant(published.get());
                     }
                 });
    return value;
}

} // namespace quelby
