#include "app/linux/late_dashboard.h"

#include "console/standard_output.h"

namespace quelby::app {

bool LateDashboard::make() {
    if (window_) {
        return true;
    }
    const auto library = loadDashboardLibrary();
    if (!library) {
        writeToStandardError("quelby: the library with the dashboard is missing\n");
        return false;
    }
    window_ = library->makeWindow(parts_);
    window_->setForm(form_);
    window_->setItemPlace(itemPlace_);
    return true;
}

bool LateDashboard::isShown() const {
    return window_ && window_->isShown();
}

void LateDashboard::show() {
    if (make()) {
        window_->show();
    }
}

void LateDashboard::showSettings() {
    if (make()) {
        window_->showSettings();
    }
}

void LateDashboard::close() {
    if (window_) {
        window_->close();
    }
}

void LateDashboard::setItemPlace(std::optional<QPoint> place) {
    itemPlace_ = place;
    if (window_) {
        window_->setItemPlace(place);
    }
}

void LateDashboard::setForm(PopoverForm form) {
    form_ = form;
    if (window_) {
        window_->setForm(form);
    }
}

bool LateDashboard::closedByThisPress(std::optional<QPoint> place) const {
    return window_ && window_->closedByThisPress(place);
}

void LateDashboard::appearanceChanged() {
    if (window_) {
        window_->appearanceChanged();
    }
}

} // namespace quelby::app
