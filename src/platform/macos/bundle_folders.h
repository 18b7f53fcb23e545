#pragma once

#include "platform/folders.h"

namespace quelby {

// The user's Library, and the bundle of the application that this program belongs to. A program outside an
// application's bundle is its own executable, and has no resources.
class BundleFolders final : public Folders {
public:
    [[nodiscard]] std::filesystem::path applicationSupport() override;
    [[nodiscard]] std::filesystem::path configuration() override;
    [[nodiscard]] std::filesystem::path helper() override;
    [[nodiscard]] std::optional<std::filesystem::path> resources() override;
    [[nodiscard]] std::filesystem::path program() override;
};

} // namespace quelby
