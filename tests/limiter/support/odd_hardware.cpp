#include "limiter/support/odd_hardware.h"

#include <set>

namespace quelby::limiter {

std::vector<std::string> OddHardware::names(const std::string& folder) const {
    std::set<std::string> names;
    for (const auto& [path, attribute] : attributes_) {
        if (path.rfind(folder + '/', 0) == 0) {
            const auto rest = path.substr(folder.size() + 1);
            names.insert(rest.substr(0, rest.find('/')));
        }
    }
    return {names.begin(), names.end()};
}

bool OddHardware::exists(const std::string& path) const {
    return attributes_.contains(path) || !names(path).empty();
}

tl::expected<std::string, std::error_code> OddHardware::read(const std::string& attribute) const {
    ++const_cast<OddHardware*>(this)->reads;
    const auto entry = attributes_.find(attribute);
    if (entry == attributes_.end()) {
        return tl::make_unexpected(std::make_error_code(std::errc::no_such_file_or_directory));
    }
    const auto& [path, found] = *entry;
    if (found.readFailure != std::errc()) {
        return tl::make_unexpected(std::make_error_code(found.readFailure));
    }
    return found.give ? found.give(found.text) : found.text;
}

std::error_code OddHardware::write(const std::string& attribute, const std::string& value) {
    const auto entry = attributes_.find(attribute);
    if (entry == attributes_.end()) {
        return std::make_error_code(std::errc::no_such_file_or_directory);
    }
    auto& found = entry->second;
    std::errc answer{};
    if (found.take) {
        answer = found.take(value);
    } else {
        found.text = value;
    }
    const auto end = attribute.rfind('/');
    writes.push_back(attribute.substr(attribute.rfind('/', end - 1) + 1) + '=' + value +
                     (answer == std::errc() ? "" : "!"));
    return answer == std::errc() ? std::error_code() : std::make_error_code(answer);
}

void OddHardware::remove(const std::string& folder) {
    std::erase_if(attributes_, [&](const auto& one) { return one.first.rfind(folder + '/', 0) == 0; });
}

} // namespace quelby::limiter
