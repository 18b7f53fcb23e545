#pragma once

#include <memory>
#include <optional>

#include <QQuickWindow>
#include <QTimer>

#include "app/linux/popover/popover_stage.h"
#include "app/linux/popover/popover_transition.h"
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

    [[nodiscard]] bool isShown() const override { return !leaving_ && (stage_ || window_->isVisible()); }

    void show(const ItemPress& press) override;

    void showSettings() override { view_.showSettings(true); }

    void hide() override;

    void setAppearance(Appearance appearance) override;

private:
    class Window;

    [[nodiscard]] QSize wholeView() const; // where there is room for it
    void showAtTheItem(const ItemPress& press);
    void showAsOrdinaryWindow();
    void placed(QSize size, Qt::Edge panel);
    void lieOnWhatIsBehind();
    void focusLeft();
    void gone();

    PopoverForm form_;
    Listener listener_;
    Appearance appearance_;
    Backdrop backdrop_ = Backdrop::none;
    EdgePanels panels_; // before the view: its answer comes while that is made
    DashboardModel model_;
    DashboardView view_;
    std::unique_ptr<QQuickWindow> window_;
    PopoverTransition transition_;
    Qt::Edge panel_ = Qt::TopEdge;        // from where it came
    bool leaving_ = false;                // still to be seen, but of no more use
    QTimer focusAway_;                    // runs while it is not yet certain that the focus stays away
    bool hasHadFocus_ = false;            // since it was last shown at the item
    std::unique_ptr<PopoverStage> stage_; // while it is shown at the item
};

} // namespace quelby::app
