#include "platform/replay/recording_line.h"

#include <cmath>
#include <limits>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace quelby {

namespace {

using Json = nlohmann::json;
using OrderedJson = nlohmann::ordered_json;

// Reads one key after the other and remembers the first that is missing or not what it should be.
class LineReader {
public:
    explicit LineReader(const Json& object) : object_(object) {}

    template <typename Accept>
    void required(const char* key, const char* meaning, Accept accept) {
        const auto found = object_.find(key);
        if (found == object_.end()) {
            refuse(fmt::format("has no \"{}\"", key));
        } else if (!accept(*found)) {
            refuse(fmt::format("has a \"{}\" that is not {}", key, meaning));
        }
    }

    template <typename Accept>
    void optional(const char* key, const char* meaning, Accept accept) {
        const auto found = object_.find(key);
        if (found != object_.end() && !found->is_null() && !accept(*found)) {
            refuse(fmt::format("has a \"{}\" that is not {}", key, meaning));
        }
    }

    [[nodiscard]] const std::string& complaint() const { return complaint_; }

private:
    void refuse(std::string complaint) {
        if (complaint_.empty()) {
            complaint_ = std::move(complaint);
        }
    }

    const Json& object_;
    std::string complaint_;
};

// An unsigned number above the range of 64 signed bits is an integer for JSON but not for us.
std::optional<std::int64_t> integer(const Json& value) {
    const bool tooLarge =
        value.is_number_unsigned() &&
        value.get<std::uint64_t>() > std::uint64_t{std::numeric_limits<std::int64_t>::max()};
    return value.is_number_integer() && !tooLarge ? std::optional(value.get<std::int64_t>()) : std::nullopt;
}

PropertyTable propertyTable(const Json& object) {
    PropertyTable table;
    for (const auto& [key, value] : object.items()) {
        if (value.is_boolean()) {
            table.insert_or_assign(key, value.get<bool>());
        } else if (const auto number = integer(value)) {
            table.insert_or_assign(key, *number);
        }
    }
    return table;
}

bool readBattery(const Json& value, BatteryReading& battery) {
    if (value.is_null()) {
        battery = NoBattery{};
    } else if (value == "unreadable") {
        battery = UnreadableBattery{};
    } else if (value.is_object()) {
        battery = propertyTable(value);
    } else {
        return false;
    }
    return true;
}

bool readListing(const Json& value, std::optional<std::string>& listing) {
    if (value.is_string()) {
        listing = value.get<std::string>();
    }
    return value.is_string() || value.is_null();
}

bool readTime(const Json& value, double& time) {
    if (value.is_number()) {
        time = value.get<double>();
    }
    return value.is_number() && std::isfinite(time);
}

bool readTimeSinceBoot(const Json& value, std::optional<TimeSinceBoot>& sinceBoot) {
    TimeSinceBoot time;
    const bool whole = value.is_object() && value.contains("awake") && value.contains("asleep") &&
                       readTime(value["awake"], time.awake) && readTime(value["asleep"], time.asleep);
    if (whole) {
        sinceBoot = time;
    }
    return whole;
}

bool readProcessors(const Json& value, std::int64_t& processors) {
    processors = integer(value).value_or(0);
    return processors >= 1;
}

bool readDraw(const Json& value, std::optional<int>& draw) {
    const auto number = integer(value);
    if (number != 0 && number != 1) {
        return false;
    }
    draw = static_cast<int>(*number);
    return true;
}

bool readFlag(const Json& value, bool& flag) {
    if (value.is_boolean()) {
        flag = value.get<bool>();
    }
    return value.is_boolean();
}

OrderedJson batteryAsJson(const BatteryReading& battery) {
    if (std::holds_alternative<NoBattery>(battery)) {
        return nullptr;
    }
    const auto* const table = std::get_if<PropertyTable>(&battery);
    if (table == nullptr) {
        return "unreadable";
    }
    OrderedJson object = OrderedJson::object();
    for (const auto& [key, value] : *table) {
        std::visit([&, &name = key](auto content) { object[name] = content; }, value);
    }
    return object;
}

OrderedJson textAsJson(const std::optional<std::string>& text) {
    return text ? OrderedJson(*text) : OrderedJson(nullptr);
}

} // namespace

Result<RecordedCycle> parseRecordingLine(std::string_view line) {
    const auto object = Json::parse(line, nullptr, false);
    if (!object.is_object()) {
        return problem("is not a JSON object");
    }
    RecordedCycle cycle;
    LineReader reader(object);
    reader.required("time", "a number", [&](const Json& value) { return readTime(value, cycle.time); });
    reader.required("battery", "a table, null or \"unreadable\"",
                    [&](const Json& value) { return readBattery(value, cycle.battery); });
    reader.required("processors", "a whole number of 1 or more",
                    [&](const Json& value) { return readProcessors(value, cycle.processors); });
    reader.required("cpuListing", "a text or null",
                    [&](const Json& value) { return readListing(value, cycle.cpuListing); });
    reader.required("topListing", "a text or null",
                    [&](const Json& value) { return readListing(value, cycle.topListing); });
    reader.optional("applicationListing", "a text",
                    [&](const Json& value) { return readListing(value, cycle.applicationListing); });
    reader.optional("sinceBoot", "two numbers of seconds",
                    [&](const Json& value) { return readTimeSinceBoot(value, cycle.sinceBoot); });
    reader.optional("storageDraw", "0 or 1",
                    [&](const Json& value) { return readDraw(value, cycle.storageDraw); });
    reader.optional("status", "a text", [&](const Json& value) { return readListing(value, cycle.status); });
    reader.optional("helperLoaded", "a Boolean",
                    [&](const Json& value) { return readFlag(value, cycle.helperLoaded); });
    reader.optional("config", "a text", [&](const Json& value) { return readListing(value, cycle.config); });
    if (!reader.complaint().empty()) {
        return problem(reader.complaint());
    }
    return cycle;
}

std::string recordingLine(const RecordedCycle& cycle) {
    OrderedJson object = OrderedJson::object();
    object["time"] = cycle.time;
    object["battery"] = batteryAsJson(cycle.battery);
    object["processors"] = cycle.processors;
    object["cpuListing"] = textAsJson(cycle.cpuListing);
    object["topListing"] = textAsJson(cycle.topListing);
    if (cycle.applicationListing) {
        object["applicationListing"] = *cycle.applicationListing;
    }
    if (cycle.sinceBoot) {
        object["sinceBoot"] = {{"awake", cycle.sinceBoot->awake}, {"asleep", cycle.sinceBoot->asleep}};
    }
    if (cycle.storageDraw) {
        object["storageDraw"] = *cycle.storageDraw;
    }
    if (cycle.status) {
        object["status"] = *cycle.status;
    }
    object["helperLoaded"] = cycle.helperLoaded;
    if (cycle.config) {
        object["config"] = *cycle.config;
    }
    // A listing that is not UTF-8 would otherwise be an exception; JSON has no other text.
    return object.dump(-1, ' ', false, OrderedJson::error_handler_t::replace);
}

} // namespace quelby
