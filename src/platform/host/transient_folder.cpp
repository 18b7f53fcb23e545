#include "platform/host/transient_folder.h"

#include <random>

#include <fmt/format.h>

namespace quelby {

namespace {

std::filesystem::path unknownName() {
    std::random_device random;
    std::error_code failure;
    const auto folder = std::filesystem::temp_directory_path(failure);
    return (failure ? "/tmp" : folder) / fmt::format("quelby-{:08x}{:08x}", random(), random());
}

} // namespace

TransientFolder::TransientFolder() : path_(unknownName()) {}

TransientFolder::~TransientFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

} // namespace quelby
