// Stands in for the I/O registry and for the objects of CoreFoundation that it hands out. Whatever would be
// an error on a real system ends the program: an object that is gone, of another type, or released too often.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace quelby::fake {

struct Data {}; // a value of a type that nobody reads

using Value = std::variant<bool, std::int64_t, double, std::string, Data>;
using Properties = std::vector<std::pair<Value, Value>>;

struct Registry {
    enum class Reading { succeeds, failsWithATable, givesNothing, givesData };

    bool matchesCanBeMade = true;
    std::optional<Properties> battery; // nothing: there is no service of that class
    Reading reading = Reading::succeeds;

    std::vector<std::string> calls; // of the registry's functions
};

// The one that answers, as a test has made it.
[[nodiscard]] Registry& registry();

// Objects and entries that nobody has released yet.
[[nodiscard]] std::size_t unreleased();

// A registry without a battery, and nothing left unreleased.
void forgetEverything();

} // namespace quelby::fake
