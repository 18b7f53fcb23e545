#include "app/linux/session/x_settings.h"

#include <gtest/gtest.h>

#include "app/linux/support/x_settings_property.h"

namespace quelby::app {
namespace {

const XSettingValues someSettings{{"Net/ThemeName", "Adwaita-dark"},
                                  {"Net/DoubleClickTime", 250},
                                  {"Gtk/EnableAnimations", 0},
                                  {"Gtk/Nothing", ""},
                                  {"Xft/Below", -1},
                                  {"Odd", "12345"}};

TEST(XSettings, AreReadInBothByteOrders) {
    for (const auto order : {QDataStream::LittleEndian, QDataStream::BigEndian}) {
        const XSettings settings(xSettingsProperty(someSettings, order));
        EXPECT_EQ(settings.text("Net/ThemeName"), "Adwaita-dark");
        EXPECT_EQ(settings.text("Gtk/Nothing"), "");
        EXPECT_EQ(settings.text("Odd"), "12345");
        EXPECT_EQ(settings.number("Net/DoubleClickTime"), 250);
        EXPECT_EQ(settings.number("Gtk/EnableAnimations"), 0);
        EXPECT_EQ(settings.number("Xft/Below"), -1);
    }
}

TEST(XSettings, SayNothingUnderAnotherNameOrOfAnotherKind) {
    const XSettings settings(xSettingsProperty(someSettings));
    EXPECT_EQ(settings.text("Net/ThemeNam"), std::nullopt);
    EXPECT_EQ(settings.number("Net/ThemeName"), std::nullopt);
    EXPECT_EQ(settings.text("Net/DoubleClickTime"), std::nullopt);
    EXPECT_EQ(XSettings().number("Net/DoubleClickTime"), std::nullopt);
}

TEST(XSettings, PassOverColours) {
    auto bytes = xSettingsProperty({{"A", 1}, {"B", 2}});
    bytes[12] = 2; // "A" is a colour now, which is twice as long
    bytes.insert(12 + 4 + 4 + 4 + 4, QByteArray(4, '\xFF'));
    const XSettings settings(bytes);
    EXPECT_EQ(settings.number("A"), std::nullopt);
    EXPECT_EQ(settings.number("B"), 2);
}

TEST(XSettings, KeepWhatStandsBeforeTheCut) {
    const auto whole = xSettingsProperty({{"A", 1}, {"B", "text"}});
    for (int size = 0; size <= whole.size(); ++size) {
        const XSettings settings(whole.left(size));
        EXPECT_EQ(settings.number("A").has_value(), size >= 28) << size;
        EXPECT_EQ(settings.text("B").has_value(), size == whole.size()) << size;
    }
}

TEST(XSettings, SurviveEveryByteThatIsWrong) {
    const auto whole = xSettingsProperty(someSettings);
    for (int at = 0; at < whole.size(); ++at) {
        for (const char wrong : {'\0', '\1', '\x7F', '\xFF'}) {
            auto bytes = whole;
            bytes[at] = wrong;
            static_cast<void>(XSettings(bytes));
        }
    }
}

} // namespace
} // namespace quelby::app
