#pragma once

#include <memory>
#include <optional>

#include <QQuickWindow>

#include "app/linux/popover/outside_presses.h"
#include "app/linux/popover/quick_library.h"
#include "ui/view/dashboard_view.h"

namespace quelby::app {

// The dashboard in a window of its own.
class PopoverWindow final : public DashboardWindow {
public:
    PopoverWindow(const PopoverParts& parts, PopoverForm form, Listener listener);
    PopoverWindow(const PopoverWindow&) = delete;
    PopoverWindow& operator=(const PopoverWindow&) = delete;
    ~PopoverWindow() override;

    [[nodiscard]] bool isShown() const override { return window_->isVisible(); }

    void show(std::optional<QPoint> itemPlace) override;

    void showSettings() override { view_.showSettings(true); }

    void hide() override;

    void setAppearance(Appearance appearance) override { view_.setAppearance(appearance); }

private:
    class Window;

    void placeAt(std::optional<QPoint> itemPlace);
    void pressedSomewhere(QPoint where) const;

    PopoverForm form_;
    Listener listener_;
    DashboardModel model_;
    DashboardView view_;
    std::unique_ptr<QQuickWindow> window_;
    std::unique_ptr<OutsidePresses> presses_; // while it is shown
};

} // namespace quelby::app
