#include "platform/host/chosen_folders.h"

#include <utility>

namespace quelby {

namespace {

namespace fs = std::filesystem;

std::optional<fs::path> absolute(const std::optional<fs::path>& path) {
    return path ? std::optional(fs::absolute(*path)) : std::nullopt;
}

ChosenFolders::Named completed(const ChosenFolders::Named& named, const fs::path& temporary) {
    return {.applicationSupport = named.applicationSupport.value_or(temporary / "data"),
            .configuration = named.configuration.value_or(temporary / "configuration"),
            .helper = named.helper.value_or(temporary / "helper")};
}

} // namespace

ChosenFolders::ChosenFolders(std::unique_ptr<Folders> system, const Named& named)
    : system_(std::move(system))
    , named_{.applicationSupport = absolute(named.applicationSupport),
             .configuration = absolute(named.configuration),
             .helper = absolute(named.helper)} {}

fs::path ChosenFolders::applicationSupport() {
    return named_.applicationSupport ? *named_.applicationSupport : system_->applicationSupport();
}

fs::path ChosenFolders::configuration() {
    return named_.configuration ? *named_.configuration : system_->configuration();
}

fs::path ChosenFolders::helper() {
    return named_.helper ? *named_.helper : system_->helper();
}

std::optional<fs::path> ChosenFolders::resources() {
    return system_->resources();
}

fs::path ChosenFolders::program() {
    return system_->program();
}

DemonstrationFolders::DemonstrationFolders(std::unique_ptr<Folders> system, const Named& named)
    : DemonstrationFolders(std::move(system), named, std::make_unique<TransientFolder>()) {}

DemonstrationFolders::DemonstrationFolders(std::unique_ptr<Folders> system, const Named& named,
                                           std::unique_ptr<TransientFolder> folder)
    : ChosenFolders(std::move(system), completed(named, folder->path())), folder_(std::move(folder)) {}

} // namespace quelby
