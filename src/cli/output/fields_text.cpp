#include "cli/output/fields_text.h"

#include <fmt/format.h>

#include "base/arithmetic.h"
#include "base/utf8.h"

namespace quelby::cli {

namespace {

std::string asText(bool value) {
    return value ? "yes" : "no";
}

std::string asText(Int value) {
    return fmt::format("{}", value);
}

std::string asText(double value) {
    return fmt::format("{:.2f}", value);
}

std::string asText(const std::string& value) {
    return value.empty() ? "-" : printable(value);
}

std::string asText(TimeRange range) {
    return std::string(rawValue(range));
}

std::string asText(MenuBarDisplay display) {
    return std::string(rawValue(display));
}

std::string asText(const std::optional<Date>& date) {
    return date ? fmt::format("{:.0f} s since 1970", *date) : "never";
}

std::string listAsText(const std::vector<ProcessInfo_Energy>& processes, std::string_view) {
    std::string lines;
    for (const auto& process : processes) {
        lines += fmt::format("\n    {:6.1f} %  {:6.2f} W  {}", process.cpu, process.estimatedWatts,
                             printable(process.name));
    }
    return lines;
}

std::string listAsText(const std::vector<double>& values, std::string_view unit) {
    return fmt::format("{:.2f} {}, the last of {}", values.back(), unit, values.size());
}

std::string listAsText(const std::vector<HistoryDataPoint>& points, std::string_view unit) {
    return fmt::format("{:.2f} {}, the last of {}", points.back().watts, unit, points.size());
}

template <typename T>
std::string withUnit(const T& value, std::string_view unit) {
    return unit.empty() ? asText(value) : fmt::format("{} {}", asText(value), unit);
}

template <typename T>
std::string withUnit(const std::vector<T>& list, std::string_view unit) {
    return list.empty() ? "none" : listAsText(list, unit);
}

} // namespace

std::string fieldsAsText(const PublishedFields& fields) {
    std::string text;
    forEachField(fields, [&](FieldName field, const auto& published) {
        text += fmt::format("{:<23} {}\n", field.name, withUnit(published.get(), field.unit));
    });
    return text;
}

std::string statusAsText(const PublishedFields& fields, std::optional<double> minutesToLimit) {
    auto text = fieldsAsText(fields);
    if (minutesToLimit) {
        text += fmt::format("{:<23} {} min\n", "minutesToLimit", truncated(*minutesToLimit));
    }
    return text;
}

} // namespace quelby::cli
