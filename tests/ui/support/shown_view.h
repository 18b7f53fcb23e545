// The dashboard's view in a window of its own, and what is found in it.
#pragma once

#include <functional>
#include <vector>

#include <QImage>
#include <QQuickWindow>

#include "ui/support/made_up_dashboard.h"
#include "ui/view/dashboard_view.h"

namespace quelby {

class ShownView {
public:
    explicit ShownView(MadeUpDashboard& dashboard, Appearance appearance = {.animated = false});
    ShownView(const ShownView&) = delete;
    ShownView& operator=(const ShownView&) = delete;
    ~ShownView();

    [[nodiscard]] DashboardView& view() { return view_; }

    [[nodiscard]] QQuickItem& root() const { return view_.item(); }

    [[nodiscard]] QQuickWindow& window() { return window_; }

    void showSettings(bool shown = true);

    // Until the layout is what will be drawn.
    void settle();

    [[nodiscard]] QImage picture() { return window_.grabWindow(); }

    // Where something is drawn, in points from the view's upper left corner.
    [[nodiscard]] QRectF placeOf(const QQuickItem& item) const;

private:
    DashboardView view_;
    QQuickWindow window_;
};

// Whether the item is of the type of this name, or made of it: "CardChrome" also for each card.
[[nodiscard]] bool isA(const QObject& item, const char* type);

// The items below another that can be seen, in the order of the files.
[[nodiscard]] std::vector<QQuickItem*> visibleItems(const QQuickItem& root, const char* type);

// The nearest item of the type around another; null where there is none.
[[nodiscard]] QQuickItem* enclosing(const QQuickItem& item, const char* type);

} // namespace quelby
