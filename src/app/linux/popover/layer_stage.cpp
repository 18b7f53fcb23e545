#include "app/linux/popover/layer_stage.h"

#include <chrono>

#include <QGuiApplication>
#include <QScreen>

#include "app/linux/popover/desktop_screens.h"
#include "app/linux/popover/press_catcher.h"

namespace quelby::app {

namespace {

using namespace std::chrono_literals;

constexpr auto longestPress = 250ms; // during which the pointer belongs to the panel

constexpr auto ofTheDesktop = Qt::FramelessWindowHint | Qt::BypassWindowManagerHint;

} // namespace

struct LayerStage::Catcher {
    std::unique_ptr<PressCatcher> window;
    std::unique_ptr<LayerSurface> surface;
};

LayerStage::LayerStage(std::unique_ptr<LayerShell> shell, QQuickWindow& window, EdgePanels& panels,
                       const ItemPress& press, QSize size, Listener listener)
    : shell_(std::move(shell))
    , window_(window)
    , panels_(panels)
    , press_(press)
    , size_(size)
    , listener_(std::move(listener)) {
    window_.setFlags(ofTheDesktop);
    catchPresses();
    waiting_.setSingleShot(true);
    QObject::connect(&waiting_, &QTimer::timeout, &waiting_, [this] { bringPopover(); });
    waiting_.start(press_.isNew ? longestPress : 0ms);
}

LayerStage::~LayerStage() {
    LayerStage::letGo();
}

void LayerStage::letGo() {
    waiting_.stop();
    focus_.reset();
    if (popover_) {
        popover_->releaseKeyboard();
    }
    for (auto& catcher : catchers_) {
        catcher->surface.reset();
    }
    catchers_.clear();
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
    const auto screens = desktopScreens(panels_);
    const auto place = popoverPlace({.told = std::nullopt, .pointer = press_.pointer}, screens, size_);
    auto* const screen = QGuiApplication::screens().at(static_cast<qsizetype>(place.screen));
    window_.setScreen(screen);
    popover_ =
        std::make_unique<LayerSurface>(*shell_, window_, betweenPanels(), [this] { listener_.dismissed(); });
    const auto there = besidePanel(place, screen->geometry(), popover_->size(), size_);
    popover_->move(there);
    popover_->handOver();
    focus_ = SwayFocus::watch([this] { listener_.dismissed(); });
    listener_.placed(there.size, place.panel);
}

} // namespace quelby::app
