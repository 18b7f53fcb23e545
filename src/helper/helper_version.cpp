#include "helper/helper_version.h"

#include "helper/json_record.h"

namespace quelby {

std::optional<std::string> helperVersion(const std::optional<std::string>& details) {
    const auto record = details ? JsonRecord::read(*details) : std::nullopt;
    return record ? record->text("version") : std::nullopt;
}

bool isHelperOf(const std::optional<std::string>& details, std::string_view version) {
    return helperVersion(details) == version;
}

} // namespace quelby
