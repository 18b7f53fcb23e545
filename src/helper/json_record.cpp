#include "helper/json_record.h"

#include <cmath>
#include <limits>
#include <set>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

namespace quelby {

namespace {

using Json = nlohmann::json;

// Each function takes what the parser meets next; false ends the parsing.
class MemberReader final : public nlohmann::json_sax<Json> {
public:
    bool null() override { return take(nullptr); }

    bool boolean(bool value) override { return take(value); }

    bool number_integer(std::int64_t value) override { return take(value); }

    bool number_unsigned(std::uint64_t value) override {
        return std::in_range<std::int64_t>(value) ? take(static_cast<std::int64_t>(value))
                                                  : take(static_cast<double>(value));
    }

    bool number_float(double value, const std::string&) override { return take(value); }

    bool string(std::string& value) override { return take(std::move(value)); }

    bool binary(Json::binary_t&) override { return false; }

    bool start_object(std::size_t) override { return open_.empty() ? enter() : takeComposite(); }

    bool start_array(std::size_t) override { return !open_.empty() && takeComposite(); }

    bool end_object() override { return leave(); }

    bool end_array() override { return leave(); }

    bool key(std::string& key) override {
        if (open_.size() == 1) {
            key_ = key;
        }
        return open_.back().insert(std::move(key)).second;
    }

    bool parse_error(std::size_t, const std::string&, const Json::exception&) override { return false; }

    [[nodiscard]] JsonRecord::Members takeMembers() { return std::move(members_); }

private:
    bool take(JsonRecord::Value value) {
        if (open_.size() == 1) {
            members_.emplace(key_, std::move(value));
        }
        return !open_.empty();
    }

    bool takeComposite() { return take(JsonRecord::Composite{}) && enter(); }

    bool enter() {
        open_.emplace_back();
        return open_.size() <= JsonRecord::deepestNesting;
    }

    bool leave() {
        open_.pop_back();
        return true;
    }

    std::vector<std::set<std::string>> open_; // the keys so far of each object or array that has not ended
    std::string key_;                         // the last one of the outermost object
    JsonRecord::Members members_;
};

// The parser would take a zero byte for the end of the text. JSON has it nowhere.
bool isWorthParsing(std::string_view text) {
    return text.size() <= JsonRecord::longestText && text.find('\0') == std::string_view::npos;
}

} // namespace

std::optional<JsonRecord> JsonRecord::read(std::string_view text) {
    MemberReader reader;
    if (!isWorthParsing(text) || !Json::sax_parse(text, &reader)) {
        return std::nullopt;
    }
    return JsonRecord(reader.takeMembers());
}

template <typename T>
std::optional<T> JsonRecord::valueOf(std::string_view key) const {
    const auto member = members_.find(key);
    if (member == members_.end() || !std::holds_alternative<T>(member->second)) {
        return std::nullopt;
    }
    return std::get<T>(member->second);
}

std::optional<bool> JsonRecord::boolean(std::string_view key) const {
    return valueOf<bool>(key);
}

std::optional<std::string> JsonRecord::text(std::string_view key) const {
    return valueOf<std::string>(key);
}

std::optional<double> JsonRecord::number(std::string_view key) const {
    const auto whole = valueOf<std::int64_t>(key);
    return whole ? static_cast<double>(*whole) : valueOf<double>(key);
}

std::optional<std::int64_t> JsonRecord::integer(std::string_view key) const {
    constexpr double beyondExactness = 9007199254740992.0; // 2^53
    const auto other = valueOf<double>(key);
    const bool isWhole = other && std::abs(*other) < beyondExactness && std::trunc(*other) == *other;
    return isWhole ? static_cast<std::int64_t>(*other) : valueOf<std::int64_t>(key);
}

bool JsonRecord::lacks(std::string_view key) const {
    return !members_.contains(key) || valueOf<std::nullptr_t>(key);
}

} // namespace quelby
