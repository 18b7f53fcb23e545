// How the item describes itself to tools that look around on the bus.

#include <QXmlStreamReader>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/linux/support/bus_peer.h"
#include "app/linux/tray/status_notifier_item.h"

namespace quelby::app {
namespace {

// The names of what an interface offers, with the kinds before them.
std::vector<std::string> membersOf(const QString& introspection, const QString& interface) {
    std::vector<std::string> members;
    QXmlStreamReader xml(introspection);
    bool within = false;
    while (!xml.atEnd()) {
        xml.readNext();
        const auto name = xml.attributes().value("name").toString();
        if (xml.name() == QLatin1String("interface")) {
            within = xml.isStartElement() && name == interface;
        } else if (within && xml.isStartElement() && !name.isEmpty()) {
            members.push_back((xml.name().toString() + ' ' + name).toStdString());
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return members;
}

class ItemIntrospection : public testing::Test {
protected:
    ItemIntrospection() { registerDBusTypes(); }

    PrivateBus bus;
    BusConnection connection;
    BusPeer peer;
    StatusItemActions actions;
    StatusNotifierItem item{*connection, actions, [](std::optional<QPoint>) { return true; },
                            [](const QByteArray&) {}};
    BusObject object{connection->baseService(), "/StatusNotifierItem", "org.kde.StatusNotifierItem"};
};

TEST_F(ItemIntrospection, DescribesWhatItOffersAtPresent) {
    using testing::Contains;
    using testing::IsSupersetOf;
    using testing::Not;
    const BusObject introspectable{object.service, object.path, "org.freedesktop.DBus.Introspectable"};
    const auto members = [&] {
        return membersOf(peer.call(introspectable, "Introspect").arguments().value(0).toString(),
                         object.interface);
    };
    item.setHost(trayHost("gnome-shell"));
    EXPECT_THAT(members(), IsSupersetOf({"property Id", "property IconPixmap", "property ToolTip",
                                         "property XAyatanaLabel", "method Activate", "method Scroll",
                                         "method ProvideXdgActivationToken", "signal NewIcon",
                                         "signal NewToolTip", "signal XAyatanaNewLabel"}));
    item.setHost(trayHost("waybar"));
    EXPECT_THAT(members(), Not(Contains("property XAyatanaLabel")));
}

TEST_F(ItemIntrospection, DescribesTheTypesOfItsProperties) {
    item.setHost(trayHost("gnome-shell"));
    const auto text = item.introspect(object.path);
    for (const auto* const property :
         {R"x(name="IconPixmap" type="a(iiay)")x", R"x(name="ToolTip" type="(sa(iiay)ss)")x",
          R"x(name="Menu" type="o")x", R"x(name="ItemIsMenu" type="b")x", R"x(name="WindowId" type="i")x"}) {
        EXPECT_TRUE(text.contains(property)) << property << " is not in " << text.toStdString();
    }
}

} // namespace
} // namespace quelby::app
