// A JSON object that another program wrote, read strictly and within bounds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace quelby {

// The members of one JSON object (RFC 8259). Of members that are objects or arrays themselves only the key is
// kept.
class JsonRecord {
public:
    static constexpr std::size_t longestText = std::size_t{64} * 1024; // bytes
    static constexpr std::size_t deepestNesting = 16;                  // the object itself counts as 1

    struct Composite {};

    using Value = std::variant<std::nullptr_t, bool, std::int64_t, double, std::string, Composite>;
    using Members = std::map<std::string, Value, std::less<>>;

    // Nothing unless the whole text is one well-formed object within the bounds above, in which neither the
    // object nor one within it has a key twice, and every number is within the range of a double.
    [[nodiscard]] static std::optional<JsonRecord> read(std::string_view text);

    // Each gives nothing where there is no such member, or one of another type.
    [[nodiscard]] std::optional<bool> boolean(std::string_view key) const;
    [[nodiscard]] std::optional<std::string> text(std::string_view key) const;
    [[nodiscard]] std::optional<double> number(std::string_view key) const; // finite

    // Written as an integer within 64 bits, or in another way that has a whole value of less than 2^53: 80.0
    // and 8e1. From there on a double may be another number than the one that was written.
    [[nodiscard]] std::optional<std::int64_t> integer(std::string_view key) const;

    // There is no such member, or it is null.
    [[nodiscard]] bool lacks(std::string_view key) const;

private:
    explicit JsonRecord(Members members) : members_(std::move(members)) {}

    template <typename T>
    [[nodiscard]] std::optional<T> valueOf(std::string_view key) const;

    Members members_;
};

} // namespace quelby
