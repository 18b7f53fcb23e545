#pragma once

#include <functional>
#include <memory>

#include <QQuickWindow>

#include "ui/view/dashboard_view.h"

namespace quelby::app {

// The window that the dashboard is drawn in, wherever it is put. The dashboard itself is made when it is
// first opened.
class PopoverContent final : public QQuickWindow {
public:
    using ModelMaker = std::function<std::unique_ptr<DashboardModel>()>;

    // `leave` is what the Escape key does where nothing in the dashboard has a use for it.
    PopoverContent(ModelMaker makeModel, std::function<void()> leave);
    PopoverContent(const PopoverContent&) = delete;
    PopoverContent& operator=(const PopoverContent&) = delete;
    ~PopoverContent() override;

    // Shows the cards the first time, and later what was shown last.
    void open(Appearance appearance);

    // Only while it is open.
    void setAppearance(Appearance appearance);

    // Shows the settings in place of the cards. Only while it is open.
    void showSettings();

    // Nobody sees the dashboard any more, so nothing is drawn or computed for it.
    void shut();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void make(Appearance appearance);

    ModelMaker makeModel_;
    std::function<void()> leave_;

    // None before the first opening.
    std::unique_ptr<DashboardModel> model_;
    std::unique_ptr<DashboardView> view_;
};

} // namespace quelby::app
