#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include <QQuickWindow>
#include <QTimer>

#include "ui/view/dashboard_view.h"

namespace quelby::app {

// The window that the dashboard is drawn in, wherever it is put. The dashboard itself is made when it is
// opened, and given back some time after it was last shut.
class PopoverContent final : public QQuickWindow {
public:
    using ModelMaker = std::function<std::unique_ptr<DashboardModel>()>;

    // `leave` is what the Escape key does where nothing in the dashboard has a use for it.
    PopoverContent(ModelMaker makeModel, std::function<void()> leave,
                   std::chrono::milliseconds keptAfterShutting = std::chrono::minutes(1));
    PopoverContent(const PopoverContent&) = delete;
    PopoverContent& operator=(const PopoverContent&) = delete;
    ~PopoverContent() override;

    // Has the dashboard at hand: the cards where it is made for this, and otherwise what was shown last.
    void prepare(Appearance appearance);

    // The same, and shows it.
    void open(Appearance appearance);

    void setAppearance(Appearance appearance);

    // Shows the settings in place of the cards. Only while it is open.
    void showSettings();

    // Nobody sees the dashboard any more, so nothing is drawn or computed for it.
    void shut();

    // Whether there is a dashboard at present, open or kept for the next opening.
    [[nodiscard]] bool isMade() const { return view_ != nullptr; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void make(Appearance appearance);
    void giveBack();

    ModelMaker makeModel_;
    std::function<void()> leave_;

    // None while they are not needed.
    std::unique_ptr<DashboardModel> model_;
    std::unique_ptr<DashboardView> view_;
    QTimer givingBack_;
};

} // namespace quelby::app
