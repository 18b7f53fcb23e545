// The dashboard as an item that can be put into a window or drawn into a picture.
#pragma once

#include <memory>

#include <QAccessible>
#include <QQmlEngine>
#include <QQuickItem>

#include "ui/bridge/dashboard_model.h"
#include "ui/view/appearance.h"

namespace quelby {

// To be called once, before the first window or view: everything is drawn without the GPU, which is quicker
// to begin and needs a third of the memory.
void drawWithoutGpu();

// The edge that the dashboard draws around itself.
enum class ViewFrame {
    none,     // what it is in has one
    straight, // a line
    rounded,  // a line with round corners, behind which everything is clear
};

class DashboardView : private QAccessible::ActivationObserver {
public:
    // The model outlives the view. Nothing is observed until the view is watched.
    DashboardView(DashboardModel& model, Appearance appearance);
    DashboardView(const DashboardView&) = delete;
    DashboardView& operator=(const DashboardView&) = delete;
    ~DashboardView() override;

    // Owned by this object; whoever shows it gives it a parent.
    [[nodiscard]] QQuickItem& item() const { return *item_; }

    [[nodiscard]] QQmlEngine& engine() { return engine_; }

    // Whether anybody could see a change.
    void setWatched(bool watched);

    void setAppearance(Appearance appearance);
    void setFrame(ViewFrame frame);
    void showSettings(bool shown);
    void showEnergy(bool shown); // where it went

    // In points from the top; the end of the column at the most.
    void scrollTo(double top);

private:
    void accessibilityActiveChanged(bool active) override;

    DashboardModel& model_;
    QQmlEngine engine_;
    std::unique_ptr<QQuickItem> item_;
};

} // namespace quelby
