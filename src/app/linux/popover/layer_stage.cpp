#include "app/linux/popover/layer_stage.h"

#include <algorithm>
#include <chrono>

#include <QGuiApplication>
#include <QScreen>

#include "app/linux/popover/desktop_screens.h"
#include "app/linux/popover/press_catcher.h"

namespace quelby::app {

namespace {

using namespace std::chrono_literals;

constexpr auto longestPress = 250ms; // during which the pointer belongs to the panel
constexpr int gap = 6;               // points between the popover and what is around it

constexpr auto ofTheDesktop = Qt::FramelessWindowHint | Qt::BypassWindowManagerHint;

LayerPlace everywhere() {
    return {.anchors = layer::top | layer::bottom | layer::left | layer::right, .amongPanels = true};
}

// Between the panels from end to end, to see how much room there is.
LayerPlace betweenPanels(int width) {
    return {.anchors = layer::top | layer::bottom | layer::right,
            .margins = {gap, gap, gap, gap},
            .size = {width, 0}};
}

std::uint32_t anchorAt(Qt::Edge edge) {
    switch (edge) {
    case Qt::TopEdge:
        return layer::top;
    case Qt::BottomEdge:
        return layer::bottom;
    case Qt::LeftEdge:
        return layer::left;
    case Qt::RightEdge:
        break;
    }
    return layer::right;
}

// The compositor keeps it off the panels; along its panel it is counted from the nearer end of the screen, so that
// it is whole on the screen whatever there is at the other.
LayerPlace besidePanel(const PopoverPlace& place, QRect screen, QSize size) {
    const bool horizontal = place.panel == Qt::TopEdge || place.panel == Qt::BottomEdge;
    LayerPlace result{.anchors = anchorAt(place.panel), .margins = {gap, gap, gap, gap}, .size = size};
    const int before = horizontal ? place.area.left() - screen.left() : place.area.top() - screen.top();
    const int behind =
        horizontal ? screen.right() - place.area.right() : screen.bottom() - place.area.bottom();
    if (horizontal && before < behind) {
        result.anchors |= layer::left;
        result.margins.setLeft(before);
    } else if (horizontal) {
        result.anchors |= layer::right;
        result.margins.setRight(behind);
    } else if (before < behind) {
        result.anchors |= layer::top;
        result.margins.setTop(std::max(gap, before));
    } else {
        result.anchors |= layer::bottom;
        result.margins.setBottom(std::max(gap, behind));
    }
    return result;
}

} // namespace

struct LayerStage::Catcher {
    std::unique_ptr<PressCatcher> window;
    std::unique_ptr<LayerSurface> surface;
};

LayerStage::LayerStage(std::unique_ptr<LayerShell> shell, QQuickWindow& window, const ItemPress& press,
                       QSize size, Listener listener)
    : shell_(std::move(shell)), window_(window), press_(press), size_(size), listener_(std::move(listener)) {
    window_.setFlags(ofTheDesktop);
    catchPresses();
    waiting_.setSingleShot(true);
    QObject::connect(&waiting_, &QTimer::timeout, &waiting_, [this] { bringPopover(); });
    waiting_.start(press_.isNew ? longestPress : 0ms);
}

LayerStage::~LayerStage() {
    focus_.reset();
    popover_.reset();
    for (auto& catcher : catchers_) {
        catcher->surface.reset();
    }
}

void LayerStage::catchPresses() {
    for (auto* const screen : QGuiApplication::screens()) {
        const QPoint corner = screen->geometry().topLeft();
        auto catcher = std::make_unique<Catcher>();
        catcher->window = std::make_unique<PressCatcher>(
            [this] { listener_.dismissed(); },
            [this, corner](QPointF place) { pointerIsAt(corner + place.toPoint()); });
        catcher->window->setFlags(ofTheDesktop);
        catcher->window->setScreen(screen);
        catcher->surface = std::make_unique<LayerSurface>(*shell_, *catcher->window, everywhere(), [] {});
        catcher->window->resize(catcher->surface->size()); // Qt counts presses within its own size
        catcher->surface->handOver();
        catcher->surface->showNothing();
        catchers_.push_back(std::move(catcher));
    }
}

void LayerStage::pointerIsAt(QPoint point) {
    if (press_.isNew && !popover_) {
        press_.pointer = point;
        listener_.itemFound(point);
        bringPopover();
    }
}

void LayerStage::bringPopover() {
    waiting_.stop();
    const auto screens = desktopScreens();
    const auto place = popoverPlace({.told = std::nullopt, .pointer = press_.pointer}, screens, size_);
    auto* const screen = QGuiApplication::screens().at(static_cast<qsizetype>(place.screen));
    window_.setScreen(screen);
    popover_ = std::make_unique<LayerSurface>(*shell_, window_, betweenPanels(size_.width()),
                                              [this] { listener_.dismissed(); });
    const QSize size(size_.width(), std::min(size_.height(), popover_->size().height()));
    auto there = besidePanel(place, screen->geometry(), size);
    there.keyboard = layer::Keyboard::exclusive;
    popover_->move(there);
    popover_->handOver();
    focus_ = SwayFocus::watch([this] { listener_.dismissed(); });
    listener_.placed(size, place.panel);
}

} // namespace quelby::app
