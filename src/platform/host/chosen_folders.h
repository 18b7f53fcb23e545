#pragma once

#include <memory>
#include <optional>

#include "platform/folders.h"
#include "platform/host/transient_folder.h"

namespace quelby {

// The system's folders, less those for which another one was named.
class ChosenFolders : public Folders {
public:
    struct Named {
        std::optional<std::filesystem::path> applicationSupport;
        std::optional<std::filesystem::path> configuration;
        std::optional<std::filesystem::path> helper;
    };

    ChosenFolders(std::unique_ptr<Folders> system, const Named& named);

    [[nodiscard]] std::filesystem::path applicationSupport() override;
    [[nodiscard]] std::filesystem::path configuration() override;
    [[nodiscard]] std::filesystem::path helper() override;
    [[nodiscard]] std::optional<std::filesystem::path> resources() override;
    [[nodiscard]] std::filesystem::path program() override;

private:
    std::unique_ptr<Folders> system_;
    Named named_;
};

// For a demonstration: folders that nobody named are temporary.
class DemonstrationFolders final : public ChosenFolders {
public:
    DemonstrationFolders(std::unique_ptr<Folders> system, const Named& named);

private:
    DemonstrationFolders(std::unique_ptr<Folders> system, const Named& named,
                         std::unique_ptr<TransientFolder> folder);

    std::unique_ptr<TransientFolder> folder_;
};

} // namespace quelby
