#include "cli/output/dashboard_json.h"

#include <cmath>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace quelby::cli {

namespace {

using Json = nlohmann::ordered_json;

// Whole numbers without a fraction, as people write them.
Json number(double value) {
    const bool whole = std::fabs(value) < 1e15 && value == std::trunc(value);
    return whole ? Json(static_cast<std::int64_t>(value)) : Json(value);
}

// A record is an object with a key for each of its members. The overloads say where the JSON differs from
// that.
struct AsJson {
    template <typename T>
    static Json of(const T& value) {
        if constexpr (DescribedRecord<T>) {
            return members(value);
        } else {
            return value; // Booleans, numbers and texts as they are
        }
    }

    template <typename T>
    static Json of(const std::optional<T>& value) {
        return value ? of(*value) : Json(nullptr);
    }

    template <typename T>
    static Json of(const std::vector<T>& list) {
        Json array = Json::array();
        for (const auto& element : list) {
            array.push_back(of(element));
        }
        return array;
    }

    static Json of(const Color& color) {
        return color.opacity == 1 ? std::string(text(color.name))
                                  : fmt::format("{}@{}", text(color.name), color.opacity);
    }

    static Json of(const Symbol& symbol) { return {{"symbol", symbol.name}, {"color", of(symbol.color)}}; }

    static Json of(const SliderRange& slider) {
        auto json = members(slider);
        for (auto& value : json) {
            value = number(value);
        }
        return json;
    }

    static Json of(const Header& header) {
        return {{"symbol", of(header.symbol)}, {"title", of(header.title)}};
    }

    // Both parts are written as if they were the card's own.
    static Json of(const ChargeLimitCard& card) {
        auto json = members(card);
        json.erase("offer");
        json.erase("stopLevel");
        json.update(card.offer ? members(*card.offer) : Json::object());
        json.update(card.stopLevel ? members(*card.stopLevel) : Json::object());
        return json;
    }

    static Json of(const PowerBadge& badge) {
        auto json = members(badge);
        if (badge.extra.empty()) {
            json["extra"] = nullptr;
        }
        return json;
    }

    static Json of(const ComponentCard& card) {
        auto json = members(card);
        json["total"].erase("detail");
        return json;
    }

    static Json of(const ProcessCard& card) {
        auto json = members(card);
        json.erase(card.placeholder ? "rows" : "placeholder");
        return json;
    }

    static Json of(const HistoryCard& card) {
        auto json = members(card);
        json.erase(card.placeholder ? "points" : "placeholder");
        return json;
    }

    // Of the history only how many points there are.
    static Json of(const std::vector<HistoryDataPoint>& points) { return points.size(); }

    static Json of(const HelperSection& section) {
        auto json = members(section);
        json.erase("installed");
        if (!section.update) {
            json.erase("update");
        }
        return json;
    }

    // A card that is not shown has no key.
    static Json of(const Dashboard& dashboard) {
        auto json = Json::object();
        forEachMember(dashboard, [&](std::string_view name, const auto& member) {
            if (auto card = of(member); !card.is_null()) {
                json[std::string(name)] = std::move(card);
            }
        });
        return json;
    }

private:
    template <typename Record>
    static Json members(const Record& record) {
        auto json = Json::object();
        forEachMember(
            record, [&](std::string_view name, const auto& member) { json[std::string(name)] = of(member); });
        return json;
    }
};

template <typename Record>
std::string written(const Record& record) {
    return AsJson::of(record).dump(1, ' ', false, Json::error_handler_t::replace) + '\n';
}

} // namespace

std::string dashboardAsJson(const Dashboard& dashboard) {
    return written(dashboard);
}

std::string settingsAsJson(const SettingsPanel& panel) {
    return written(panel);
}

} // namespace quelby::cli
