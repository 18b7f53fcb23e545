#include "app/linux/tray/status_notifier_item.h"

#include <QDBusObjectPath>
#include <QFile>

#include "app/linux/tray/status_icon.h"
#include "ui/presentation/text/words.h"

namespace quelby::app {

namespace {

constexpr int iconSides[] = {22, 44}; // at scale 1 and 2

const auto menuPath = QStringLiteral("/MenuBar");
const auto noMenu = QStringLiteral("/NO_DBUSMENU"); // what the protocol's hosts take for "none"

// The widest that the label becomes, so that its neighbours stay where they are.
const auto labelGuide = QStringLiteral("-888W");

} // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection& bus, const StatusItemActions& actions,
                                       PressListener pressed)
    : DBusObject(bus, QStringLiteral("/StatusNotifierItem"), QStringLiteral("org.kde.StatusNotifierItem"))
    , actions_(actions)
    , pressed_(std::move(pressed))
    , menu_(bus, menuPath, actions) {}

void StatusNotifierItem::setHost(const TrayHost& host) {
    host_ = host;
    announceIcon();
    announceLabel();
}

void StatusNotifierItem::show(const ItemContent& content) {
    const auto nameBefore = iconName();
    const bool symbolChanged = content.symbol != content_.symbol;
    const bool titleChanged = content.title != content_.title;
    const bool toolTipChanged = content.toolTip != content_.toolTip;
    content_ = content;
    menu_.setDisplay(content.display);
    if (symbolChanged || iconName() != nameBefore || (titleChanged && drawsTitle())) {
        announceIcon();
    }
    if (titleChanged) {
        announceLabel();
    }
    if (toolTipChanged) {
        announceToolTip();
    }
}

bool StatusNotifierItem::drawsTitle() const {
    return host_.icon == IconForm::wide || host_.icon == IconForm::compact;
}

void StatusNotifierItem::announceIcon() {
    if (host_.icon == IconForm::file) {
        writeIconFile();
    }
    emitSignal(QStringLiteral("NewIcon"));
}

void StatusNotifierItem::announceLabel() {
    if (!host_.showsLabel) {
        return;
    }
    const auto label = QString::fromUtf8(content_.title);
    emitSignal(QStringLiteral("XAyatanaNewLabel"), {label, labelGuide});
    emitPropertiesChanged({{QStringLiteral("XAyatanaLabel"), label}});
}

void StatusNotifierItem::announceToolTip() {
    emitSignal(QStringLiteral("NewToolTip"));
}

void StatusNotifierItem::writeIconFile() {
    if (!iconFolder_) {
        iconFolder_.emplace();
    }
    QFile::remove(iconName());
    ++iconNumber_;
    static_cast<void>(symbolIcon(content_.symbol, iconSides[1]).save(iconName(), "PNG"));
}

QString StatusNotifierItem::iconName() const {
    switch (host_.icon) {
    case IconForm::symbol:
        return QString::fromUtf8(themeIconName(content_.symbol, content_.level));
    case IconForm::file:
        return iconFolder_ ? iconFolder_->filePath(QStringLiteral("%1.png").arg(iconNumber_)) : QString();
    case IconForm::wide:
    case IconForm::compact:
        break; // hosts would prefer a name to the picture
    }
    return {};
}

DBusPictures StatusNotifierItem::pictures() const {
    DBusPictures pictures;
    for (const int side : iconSides) {
        switch (host_.icon) {
        case IconForm::wide:
            pictures.append(dbusPicture(wideIcon(content_.symbol, content_.title, side)));
            break;
        case IconForm::compact:
            pictures.append(dbusPicture(compactIcon(content_.symbol, content_.title, side)));
            break;
        case IconForm::symbol:
        case IconForm::file:
            pictures.append(dbusPicture(symbolIcon(content_.symbol, side)));
            break;
        }
    }
    return pictures;
}

QVariantMap StatusNotifierItem::properties() const {
    QVariantMap all{
        {QStringLiteral("Category"), QStringLiteral("Hardware")},
        {QStringLiteral("Id"), QStringLiteral("quelby")},
        {QStringLiteral("Title"), QString::fromUtf8(words::program)},
        {QStringLiteral("Status"), QStringLiteral("Active")},
        {QStringLiteral("WindowId"), 0},
        {QStringLiteral("IconThemePath"), QString()},
        {QStringLiteral("IconName"), iconName()},
        {QStringLiteral("IconPixmap"), QVariant::fromValue(pictures())},
        {QStringLiteral("OverlayIconName"), QString()},
        {QStringLiteral("OverlayIconPixmap"), QVariant::fromValue(DBusPictures())},
        {QStringLiteral("AttentionIconName"), QString()},
        {QStringLiteral("AttentionIconPixmap"), QVariant::fromValue(DBusPictures())},
        {QStringLiteral("AttentionMovieName"), QString()},
        {QStringLiteral("ToolTip"),
         QVariant::fromValue(
             DBusToolTip{{}, {}, QString::fromUtf8(words::program), QString::fromUtf8(content_.toolTip)})},
        {QStringLiteral("ItemIsMenu"), false},
        {QStringLiteral("Menu"), QVariant::fromValue(QDBusObjectPath(host_.wantsMenu ? menuPath : noMenu))}};
    if (host_.showsLabel) { // other hosts lose the icon where there is a label, even an empty one
        all.insert(QStringLiteral("XAyatanaLabel"), QString::fromUtf8(content_.title));
        all.insert(QStringLiteral("XAyatanaLabelGuide"), labelGuide);
    }
    return all;
}

QString StatusNotifierItem::members() const {
    return methodText("Activate", {"i", "i"}) + methodText("SecondaryActivate", {"i", "i"}) +
           methodText("XAyatanaSecondaryActivate", {"u"}) + methodText("ContextMenu", {"i", "i"}) +
           methodText("Scroll", {"i", "s"}) + methodText("ProvideXdgActivationToken", {"s"}) +
           signalText("NewIcon") + signalText("NewToolTip") + signalText("XAyatanaNewLabel", {"s", "s"});
}

bool StatusNotifierItem::call(const QDBusMessage& message) {
    const auto member = message.member();
    if (member == QLatin1String("Activate") || member == QLatin1String("SecondaryActivate") ||
        member == QLatin1String("XAyatanaSecondaryActivate") || member == QLatin1String("ContextMenu")) {
        press(message);
    } else if (member == QLatin1String("Scroll")) {
        scroll(message);
    } else if (member == QLatin1String("ProvideXdgActivationToken") && !message.arguments().isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", message.arguments().first().toString().toUtf8());
        reply(message);
    } else {
        return false;
    }
    return true;
}

void StatusNotifierItem::press(const QDBusMessage& message) {
    const auto arguments = message.arguments();
    const bool knowsWhere = host_.knowsCoordinates && arguments.size() == 2;
    if (host_.pressMustFail) {
        refuse(message);
    } else {
        reply(message);
    }
    if (pressed_(knowsWhere ? std::optional(QPoint(arguments[0].toInt(), arguments[1].toInt()))
                            : std::nullopt)) {
        actions_.toggle();
    }
}

void StatusNotifierItem::scroll(const QDBusMessage& message) const {
    reply(message);
    const int delta = message.arguments().isEmpty() ? 0 : message.arguments().first().toInt();
    if (delta != 0) {
        actions_.scroll(delta > 0 ? -1 : 1);
    }
}

} // namespace quelby::app
