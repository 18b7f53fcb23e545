#include "cli/output/fields_json.h"

#include <string_view>

#include <nlohmann/json.hpp>

#include "base/arithmetic.h"
#include "base/json_value.h"
#include "cli/output/harmless_json.h"

namespace quelby::cli {

namespace {

using Json = nlohmann::ordered_json;

template <typename T>
Json asJson(const T& value) {
    return value; // integers, numbers, Booleans and texts as they are
}

Json asJson(TimeRange range) {
    return rawValue(range);
}

Json asJson(MenuBarDisplay display) {
    return rawValue(display);
}

Json asJson(const std::optional<Date>& date) {
    return orNull(date);
}

Json asJson(const ProcessInfo_Energy& process) {
    return {{"name", process.name}, {"cpu", process.cpu}, {"estimatedWatts", process.estimatedWatts}};
}

Json asJson(const HistoryDataPoint& point) {
    return {{"id", point.id}, {"watts", point.watts}};
}

template <typename T>
Json asJson(const std::vector<T>& list) {
    Json array = Json::array();
    for (const auto& element : list) {
        array.push_back(asJson(element));
    }
    return array;
}

std::string written(const Json& value) {
    return harmless(value.dump(-1, ' ', false, Json::error_handler_t::replace));
}

void append(std::string& text, std::string_view name, const Json& value) {
    text += text.empty() ? '{' : ',';
    text += '"';
    text += name; // plain ASCII, as all of them are
    text += "\":";
    text += written(value);
}

// Written one after the other, for half of what it costs to make one object of all.
std::string membersOf(const PublishedFields& fields) {
    std::string text;
    forEachField(fields, [&](FieldName field, const auto& published) {
        append(text, field.name, asJson(published.get()));
    });
    return text;
}

} // namespace

std::string fieldsAsJson(const PublishedFields& fields) {
    return membersOf(fields) + '}';
}

std::string statusAsJson(const PublishedFields& fields, std::optional<double> minutesToLimit) {
    auto text = membersOf(fields);
    if (minutesToLimit) {
        append(text, "minutesToLimit", truncated(*minutesToLimit));
    }
    return text + '}';
}

} // namespace quelby::cli
