#pragma once

#include <memory>
#include <optional>

#include <QElapsedTimer>
#include <QPoint>
#include <QQuickWindow>
#include <QTimer>

#include "app/linux/dashboard_library.h"
#include "app/linux/outside_presses.h"
#include "ui/view/dashboard_view.h"

namespace quelby::app {

// The dashboard in a window of its own. It is made when it is first shown, and given back some time after it
// was last closed.
class PopoverWindow final : public DashboardWindow {
public:
    explicit PopoverWindow(DashboardWindowParts parts);
    PopoverWindow(const PopoverWindow&) = delete;
    PopoverWindow& operator=(const PopoverWindow&) = delete;
    ~PopoverWindow() override;

    [[nodiscard]] bool isShown() const override;
    void show() override;
    void showSettings() override;
    void close() override;

    void setItemPlace(std::optional<QPoint> place) override { itemPlace_ = place; }

    void setForm(PopoverForm form) override;
    [[nodiscard]] bool closedByThisPress(std::optional<QPoint> place) const override;
    void appearanceChanged() override;

    // The window, while there is one. For tests.
    [[nodiscard]] QQuickWindow* window() const;

private:
    class Window;

    void make();
    void giveBack();
    void place();
    void pressedSomewhere(QPoint where);

    DashboardWindowParts parts_;
    PopoverForm form_ = PopoverForm::atTheItem;
    std::optional<QPoint> itemPlace_;
    std::optional<QPoint> closingPress_;
    QElapsedTimer sinceClosingPress_;

    // None before the first opening, and after having been given back.
    std::unique_ptr<DashboardModel> model_;
    std::unique_ptr<DashboardView> view_;
    std::unique_ptr<Window> window_;

    std::unique_ptr<OutsidePresses> presses_; // while it is shown
    QTimer givingBack_;
};

} // namespace quelby::app
