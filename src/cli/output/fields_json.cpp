#include "cli/output/fields_json.h"

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

Json fieldsObject(const PublishedFields& fields) {
    Json object = Json::object();
    forEachField(fields, [&](FieldName field, const auto& published) {
        // Nothing is looked up: the names are distinct.
        object.push_back({std::string(field.name), asJson(published.get())});
    });
    return object;
}

std::string written(const Json& object) {
    return harmless(object.dump(-1, ' ', false, Json::error_handler_t::replace));
}

} // namespace

std::string fieldsAsJson(const PublishedFields& fields) {
    return written(fieldsObject(fields));
}

std::string statusAsJson(const PublishedFields& fields, std::optional<double> minutesToLimit) {
    auto object = fieldsObject(fields);
    if (minutesToLimit) {
        object.push_back({"minutesToLimit", truncated(*minutesToLimit)});
    }
    return written(object);
}

} // namespace quelby::cli
