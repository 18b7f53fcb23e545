#pragma once

#include <functional>
#include <memory>

#include <QQuickWindow>

#include "ui/view/dashboard_view.h"

namespace quelby::app {

// The window that the dashboard is drawn in, wherever it is put. The dashboard itself is made when it is
// first opened.
class QuickDashboard final : public QQuickWindow {
public:
    using ModelMaker = std::function<std::unique_ptr<DashboardModel>()>;

    // `leave` is what the Escape key does where nothing in the dashboard has a use for it.
    QuickDashboard(ModelMaker makeModel, std::function<void()> leave);
    ~QuickDashboard() override;

    // Shows the cards.
    void open(Appearance appearance);

    // The window is open, likewise below.
    void setAppearance(Appearance appearance);

    // Shows the settings in place of the cards.
    void showSettings();

    // Nobody sees the dashboard any more, so nothing is drawn or computed for it.
    void shut();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void make(Appearance appearance);

    ModelMaker makeModel_;
    std::function<void()> leave_;
    std::unique_ptr<DashboardModel> model_; // none before the first opening, likewise below
    std::unique_ptr<DashboardView> view_;
};

} // namespace quelby::app
