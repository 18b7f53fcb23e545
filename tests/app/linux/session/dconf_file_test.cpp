#include "app/linux/session/dconf_file.h"

#include <cstring>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/linux/session/gnome_settings.h"

namespace quelby::app {
namespace {

using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

// As the format has it: a header, and a table of items whose names continue one another.
class File {
public:
    static constexpr std::uint32_t none = 0xFFFFFFFF;

    // Gives the item's number.
    std::uint32_t add(std::uint32_t parent, std::string name, char kind, std::string value = {}) {
        items_.push_back({parent, std::move(name), kind, std::move(value)});
        return static_cast<std::uint32_t>(items_.size() - 1);
    }

    [[nodiscard]] std::string content() const {
        constexpr std::uint32_t header = 24;
        constexpr std::uint32_t tableHeader = 8 + 4 + 4; // with one word of the filter and one bucket
        const auto tableEnd = static_cast<std::uint32_t>(header + tableHeader + 24 * items_.size());
        std::string table = numbers({5U << 27U | 1U, 1, 0, 0});
        std::string rest;
        for (const auto& item : items_) {
            const auto nameAt = static_cast<std::uint32_t>(tableEnd + rest.size());
            rest += item.name;
            rest.resize((rest.size() + 7) / 8 * 8);
            const auto valueAt = static_cast<std::uint32_t>(tableEnd + rest.size());
            rest += item.value;
            const auto valueEnd = static_cast<std::uint32_t>(tableEnd + rest.size());
            rest.resize((rest.size() + 7) / 8 * 8);
            const auto size = static_cast<std::uint32_t>(item.name.size());
            table += numbers({0, item.parent, nameAt, size | static_cast<std::uint32_t>(item.kind) << 16U,
                              valueAt, valueEnd});
        }
        return "GVariant" + numbers({0, 0, header, tableEnd}) + table + rest;
    }

private:
    struct Item {
        std::uint32_t parent;
        std::string name;
        char kind;
        std::string value;
    };

    static std::string numbers(std::initializer_list<std::uint32_t> values) {
        std::string text;
        for (const auto value : values) {
            text.append(reinterpret_cast<const char*>(&value), sizeof value);
        }
        return text;
    }

    std::vector<Item> items_;
};

std::string text(std::string value) {
    return std::move(value) + '\0' + '\0' + 's';
}

std::string truth(bool value) {
    return std::string(1, value ? '\1' : '\0') + '\0' + 'b';
}

std::string number(double value) {
    std::string bytes(sizeof value, '\0');
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes + '\0' + 'd';
}

File settings() {
    File file;
    const auto root = file.add(File::none, "/", 'L');
    const auto desktop = file.add(root, "org/gnome/desktop/", 'L');
    const auto interface = file.add(desktop, "interface/", 'L');
    file.add(interface, "color-scheme", 'v', text("prefer-dark"));
    file.add(interface, "enable-animations", 'v', truth(false));
    file.add(interface, "text-scaling-factor", 'v', number(1.25));
    return file;
}

TEST(DconfFile, GivesEveryValueByItsPath) {
    EXPECT_THAT(
        dconfValues(settings().content()),
        UnorderedElementsAre(
            Pair("/org/gnome/desktop/interface/color-scheme",
                 DconfValues::mapped_type(std::string("prefer-dark"))),
            Pair("/org/gnome/desktop/interface/enable-animations", DconfValues::mapped_type(false)),
            Pair("/org/gnome/desktop/interface/text-scaling-factor", DconfValues::mapped_type(1.25))));
}

TEST(DconfFile, LeavesOutWhatIsOfAnotherKindOrBroken) {
    File file;
    const auto root = file.add(File::none, "/", 'L');
    file.add(root, "list", 'v', std::string("\1\0as", 4));
    file.add(root, "empty", 'v', "");
    file.add(root, "short", 'v', std::string("\0d", 2));
    file.add(root, "three bytes of a number", 'v', std::string("abc\0d", 5));
    file.add(root, "no end", 'v', std::string("word\0s", 6));
    file.add(99, "of nobody", 'v', truth(true));
    const auto itself = file.add(6, "round and round", 'L');
    file.add(itself, "never", 'v', truth(true));
    file.add(root, "good", 'v', truth(true));
    EXPECT_THAT(dconfValues(file.content()),
                UnorderedElementsAre(Pair("/good", DconfValues::mapped_type(true))));
}

TEST(DconfFile, SaysNothingWhereItIsNone) {
    for (const std::string content : {"", "GVariant", "[org/gnome]\ncolor-scheme='prefer-dark'\n"}) {
        EXPECT_THAT(dconfValues(content), IsEmpty());
    }
    EXPECT_THAT(dconfValues(std::string(1000, '\xFF')), IsEmpty());
    EXPECT_THAT(dconfValues("GVariant" + std::string(1000, '\xFF')), IsEmpty());
}

// Wherever it ends, and whatever a byte becomes: nothing is read that is not there.
TEST(DconfFile, EndsAnywhereAndHasAnyByteChanged) {
    const auto whole = settings().content();
    for (std::size_t i = 0; i < whole.size(); ++i) {
        EXPECT_LE(dconfValues(whole.substr(0, i)).size(), 3U);
        for (const char byte : {'\0', '\x7F', '\xFF'}) {
            auto changed = whole;
            changed[i] = byte;
            EXPECT_LE(dconfValues(changed).size(), 3U);
        }
    }
}

DconfValues stored(const std::string& key, DconfValues::mapped_type value) {
    return {{"/org/gnome/desktop/" + key, std::move(value)}};
}

TEST(GnomeSettings, AreThoseOfThePortalInGnomesWords) {
    EXPECT_EQ(gnomeSettings({}), PortalSettings());
    EXPECT_EQ(gnomeSettings(stored("interface/color-scheme", std::string("prefer-dark"))).colorScheme, 1U);
    EXPECT_EQ(gnomeSettings(stored("interface/color-scheme", std::string("prefer-light"))).colorScheme, 2U);
    EXPECT_EQ(gnomeSettings(stored("interface/color-scheme", std::string("default"))).colorScheme, 0U);
    EXPECT_EQ(gnomeSettings(stored("interface/color-scheme", std::string("purple"))).colorScheme,
              std::nullopt);
    EXPECT_EQ(gnomeSettings(stored("interface/color-scheme", true)).colorScheme, std::nullopt);
    EXPECT_EQ(gnomeSettings(stored("interface/gtk-theme", std::string("Yaru"))).theme, "Yaru");
    EXPECT_EQ(gnomeSettings(stored("interface/enable-animations", false)).animated, false);
    EXPECT_EQ(gnomeSettings(stored("interface/text-scaling-factor", 1.25)).textScale, 1.25);
    EXPECT_EQ(gnomeSettings(stored("interface/accent-color", std::string("teal"))).accent, 0x2190A4U);
    EXPECT_EQ(gnomeSettings(stored("interface/accent-color", std::string("beige"))).accent, std::nullopt);
    EXPECT_EQ(gnomeSettings(stored("a11y/interface/high-contrast", true)).contrast, 1U);
    EXPECT_EQ(gnomeSettings(stored("a11y/interface/high-contrast", false)).contrast, 0U);
}

} // namespace
} // namespace quelby::app
