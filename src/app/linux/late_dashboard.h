#pragma once

#include "app/linux/dashboard_library.h"

namespace quelby::app {

// The dashboard's window before there is one: it is made when it is first shown.
class LateDashboard final : public DashboardWindow {
public:
    explicit LateDashboard(DashboardWindowParts parts) : parts_(std::move(parts)) {}

    [[nodiscard]] bool isShown() const override;
    void show() override;
    void showSettings() override;
    void close() override;
    void setItemPlace(std::optional<QPoint> place) override;
    void setForm(PopoverForm form) override;
    [[nodiscard]] bool closedByThisPress(std::optional<QPoint> place) const override;
    void appearanceChanged() override;

private:
    // Whether there is a window now.
    [[nodiscard]] bool make();

    DashboardWindowParts parts_;
    std::optional<QPoint> itemPlace_;
    PopoverForm form_ = PopoverForm::atTheItem;
    std::unique_ptr<DashboardWindow> window_;
};

} // namespace quelby::app
