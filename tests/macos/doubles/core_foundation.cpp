#include "macos/doubles/core_foundation.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>

const CFAllocatorRef kCFAllocatorDefault = nullptr;

namespace quelby::fake {

struct Object {
    Content content;
    int references = 1;
};

namespace {

using Objects = std::map<const void*, std::unique_ptr<Object>>;

Objects& objects() {
    static Objects objects;
    return objects;
}

enum Type : CFTypeID { noType, booleanType, numberType, stringType, dataType, dictionaryType };

Type typeOf(const Content& content) {
    static constexpr std::array types{booleanType, numberType, numberType,
                                      stringType,  dataType,   dictionaryType};
    return types.at(content.index());
}

Object& living(CFTypeRef object) {
    const auto found = objects().find(object);
    demand(found != objects().end(), "no such object, or it is gone");
    return *found->second;
}

void destroy(const Object* object) {
    const auto node = objects().extract(object);
    if (const auto* const dictionary = std::get_if<Dictionary>(&node.mapped()->content)) {
        for (const auto& [key, value] : *dictionary) {
            CFRelease(key);
            CFRelease(value);
        }
    }
}

} // namespace

Object* makeObject(Content content) {
    auto object = std::make_unique<Object>(Object{std::move(content)});
    auto* const address = object.get();
    objects().emplace(address, std::move(object));
    return address;
}

Object* makeValue(const Value& value) {
    return std::visit([](const auto& content) { return makeObject(Content(content)); }, value);
}

Content& contentOf(CFTypeRef object) {
    return living(object).content;
}

CFMutableDictionaryRef asMutableDictionary(Object* object) {
    return reinterpret_cast<CFMutableDictionaryRef>(object);
}

void demand(bool condition, const char* complaint) {
    if (!condition) {
        std::fprintf(stderr, "Misused: %s.\n", complaint);
        std::abort();
    }
}

std::size_t unreleasedObjects() {
    return objects().size();
}

void releaseEverything() {
    objects().clear();
}

} // namespace quelby::fake

using namespace quelby::fake;

CFTypeID CFGetTypeID(CFTypeRef object) {
    return typeOf(contentOf(object));
}

void CFRelease(CFTypeRef object) {
    if (--living(object).references == 0) {
        destroy(&living(object));
    }
}

CFTypeID CFBooleanGetTypeID() {
    return booleanType;
}

Boolean CFBooleanGetValue(CFBooleanRef boolean) {
    return contentAs<bool>(boolean) ? 1 : 0;
}

CFTypeID CFNumberGetTypeID() {
    return numberType;
}

Boolean CFNumberIsFloatType(CFNumberRef number) {
    demand(CFGetTypeID(number) == numberType, "an object of another type");
    return std::holds_alternative<double>(contentOf(number)) ? 1 : 0;
}

Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value) {
    demand(type == kCFNumberSInt64Type, "a type of number that nobody needs");
    const bool isWhole = CFNumberIsFloatType(number) == 0;
    const auto integer =
        isWhole ? contentAs<std::int64_t>(number) : static_cast<std::int64_t>(contentAs<double>(number));
    std::memcpy(value, &integer, sizeof integer);
    return isWhole ? 1 : 0;
}

CFTypeID CFStringGetTypeID() {
    return stringType;
}

CFIndex CFStringGetLength(CFStringRef string) {
    const auto& text = contentAs<std::string>(string);
    return std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; });
}

CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding) {
    demand(encoding == kCFStringEncodingUTF8, "an encoding that nobody needs");
    return length * 3;
}

Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex bufferSize, CFStringEncoding encoding) {
    demand(encoding == kCFStringEncodingUTF8, "an encoding that nobody needs");
    const auto& text = contentAs<std::string>(string);
    if (std::cmp_greater_equal(text.size(), bufferSize)) {
        return 0;
    }
    std::memcpy(buffer, text.c_str(), text.size() + 1);
    return 1;
}

CFTypeID CFDictionaryGetTypeID() {
    return dictionaryType;
}

CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary) {
    return static_cast<CFIndex>(contentAs<Dictionary>(dictionary).size());
}

void CFDictionaryGetKeysAndValues(CFDictionaryRef dictionary, const void** keys, const void** values) {
    for (const auto& [key, value] : contentAs<Dictionary>(dictionary)) {
        *keys++ = key;
        *values++ = value;
    }
}
