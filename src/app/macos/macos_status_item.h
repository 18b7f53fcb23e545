#pragma once

#include <memory>

#include "app/macos/appkit_names.h"
#include "app/status_item.h"

namespace quelby::app {

// An item of the system's status bar, as wide as its title needs. The system's bar hands on no scrolling, so
// that action never happens.
class MacosStatusItem final : public StatusItem {
public:
    MacosStatusItem();
    MacosStatusItem(const MacosStatusItem&) = delete;
    MacosStatusItem& operator=(const MacosStatusItem&) = delete;
    ~MacosStatusItem() override;

    [[nodiscard]] bool hasButton() const override;
    void setActions(StatusItemActions actions) override;
    void setImage(std::string_view symbolName, std::string_view accessibilityDescription) override;

    void setLevel(std::int64_t /*percent*/) override {}

    void setTitle(std::string_view title) override;
    void setToolTip(std::string_view text) override;
    void setDisplay(MenuBarDisplay display) override;

    // The item's own; null where it has none.
    [[nodiscard]] NSStatusBarButton* button() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace quelby::app
