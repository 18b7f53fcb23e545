#include "app/linux/tray/status_notifier_item.h"

#include <utility>

#include <QDBusObjectPath>
#include <QFile>

#include "app/linux/tray/short_title.h"
#include "ui/presentation/text/words.h"

namespace quelby::app {

namespace {

const std::vector<int> iconSides{16, 22, 24, 32, 44}; // panels of all sizes, also at scale 2
constexpr int fileSide = 44;

const auto menuPath = QStringLiteral("/MenuBar");
const auto noMenu = QStringLiteral("/NO_DBUSMENU"); // what the protocol's hosts take for "none"

// The widest that the label becomes, so that its neighbours stay where they are.
const auto labelGuide = QStringLiteral("-888W");

} // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection& bus, const StatusItemActions& actions,
                                       PressListener pressed, TokenListener given)
    : DBusObject(bus, QStringLiteral("/StatusNotifierItem"), QStringLiteral("org.kde.StatusNotifierItem"))
    , actions_(actions)
    , pressed_(std::move(pressed))
    , given_(std::move(given))
    , menu_(bus, menuPath, actions) {}

void StatusNotifierItem::setHost(const TrayHost& host) {
    host_ = host;
    announceIcon();
    announceLabel();
}

void StatusNotifierItem::show(const ItemContent& content) {
    const auto nameBefore = iconName();
    const auto toolTipBefore = toolTip();
    const auto former = std::exchange(content_, content);
    menu_.setDisplay(content.display);
    const bool otherIcon = draws(former) || iconName() != nameBefore;
    const bool otherToolTip = toolTip().title != toolTipBefore.title || toolTip().text != toolTipBefore.text;
    if (otherIcon) {
        announceIcon();
    }
    if (content.title != former.title) {
        announceLabel();
    }
    if (otherToolTip && !(otherIcon && host_.readsAllAtOnce)) {
        announceToolTip();
    }
}

// Whether the picture is another now.
bool StatusNotifierItem::draws(const ItemContent& former) const {
    const bool drawsTitle = host_.icon == IconForm::wide || host_.icon == IconForm::compact;
    return content_.symbol != former.symbol || content_.ink != former.ink ||
           (drawsTitle && content_.title != former.title);
}

void StatusNotifierItem::announceIcon() {
    pictures_.reset();
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
    static_cast<void>(symbolIcon(content_.symbol, content_.ink, fileSide).save(iconName(), "PNG"));
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

// Some hosts ask for one property after the other, and each answer is taken from all of them.
const DBusPictures& StatusNotifierItem::pictures() const {
    if (!pictures_) {
        pictures_ = drawn();
    }
    return *pictures_;
}

DBusPictures StatusNotifierItem::drawn() const {
    DBusPictures pictures;
    if (host_.icon == IconForm::compact) {
        if (!symbol_ || symbol_->name() != content_.symbol) {
            symbol_.emplace(content_.symbol);
        }
        for (const auto& icon : compactIcons(*symbol_, content_.title, content_.ink, iconSides)) {
            pictures.append(dbusPicture(icon));
        }
        return pictures;
    }
    for (const int side : iconSides) {
        pictures.append(dbusPicture(host_.icon == IconForm::wide
                                        ? wideIcon(content_.symbol, content_.title, content_.ink, side)
                                        : symbolIcon(content_.symbol, content_.ink, side)));
    }
    return pictures;
}

// With the whole title where the picture has room for a shorter one only.
DBusToolTip StatusNotifierItem::toolTip() const {
    auto text = QString::fromUtf8(content_.toolTip);
    if (host_.icon == IconForm::compact && shortTitle(content_.title) != content_.title) {
        text = QString::fromUtf8(content_.title) + QStringLiteral(", ") + text;
    }
    return host_.readsTipTitle ? DBusToolTip{{}, {}, text, {}}
                               : DBusToolTip{{}, {}, QString::fromUtf8(words::program), text};
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
        {QStringLiteral("ToolTip"), QVariant::fromValue(toolTip())},
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

// The second button has two calls. Hosts that know both try Ayatana's first, which says not where, and take the
// other one where it is unknown.
bool StatusNotifierItem::call(const QDBusMessage& message) {
    const auto member = message.member();
    if (member == QLatin1String("Activate") || member == QLatin1String("SecondaryActivate") ||
        member == QLatin1String("ContextMenu") ||
        (member == QLatin1String("XAyatanaSecondaryActivate") && host_.icon == IconForm::file)) {
        press(message);
    } else if (member == QLatin1String("Scroll")) {
        scroll(message);
    } else if (member == QLatin1String("ProvideXdgActivationToken") && !message.arguments().isEmpty()) {
        given_(message.arguments().first().toString().toUtf8());
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

void StatusNotifierItem::scroll(const QDBusMessage& message) {
    reply(message);
    const auto arguments = message.arguments();
    const int delta = arguments.value(0).toInt();
    if (const int steps = wheel_.turned(delta, arguments.value(1).toString(), host_.wheel); steps != 0) {
        actions_.scroll(steps);
    }
}

} // namespace quelby::app
