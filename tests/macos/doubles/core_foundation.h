// Stands in for CoreFoundation: objects with a type and a count of references.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <CoreFoundation/CoreFoundation.h>

#include "macos/doubles/registry.h"

namespace quelby::fake {

struct Object;

using Dictionary = std::vector<std::pair<Object*, Object*>>; // owns one reference of each
using Content = std::variant<bool, std::int64_t, double, std::string, Data, Dictionary>;

// With one reference.
[[nodiscard]] Object* makeObject(Content content);
[[nodiscard]] Object* makeValue(const Value& value);

// Ends the program where the object is gone.
[[nodiscard]] Content& contentOf(CFTypeRef object);

[[nodiscard]] CFMutableDictionaryRef asMutableDictionary(Object* object);

// Ends the program, and says why, where what a real system demands is not so.
void demand(bool condition, const char* complaint);

// Ends the program where the object is of another type.
template <typename T>
[[nodiscard]] T& contentAs(CFTypeRef object) {
    auto* const content = std::get_if<T>(&contentOf(object));
    demand(content != nullptr, "an object of another type");
    return *content;
}

[[nodiscard]] std::size_t unreleasedObjects();
void releaseEverything();

} // namespace quelby::fake
