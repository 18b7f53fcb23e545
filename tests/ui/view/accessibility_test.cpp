// What those hear who cannot see the dashboard, and what they can do.
#include <QAccessible>
#include <QMetaEnum>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "helper/daemon_config.h"
#include "monitor/preference_keys.h"
#include "support/days_from_now.h"
#include "support/golden.h"
#include "ui/presentation/cards/dialogs.h"
#include "ui/presentation/cards/settings_panel.h"
#include "ui/presentation/dashboard.h"
#include "ui/presentation/text/words.h"
#include "ui/support/printing.h"
#include "ui/support/shown_view.h"

namespace quelby {
namespace {

using testing::ElementsAre;

std::string textOf(const QAccessibleInterface& thing, QAccessible::Text kind) {
    return thing.text(kind).toStdString();
}

// As in: Slider "Stop at:" = 80, 20 to 100
std::string spoken(QAccessibleInterface& thing) {
    std::string line = QMetaEnum::fromType<QAccessible::Role>().valueToKey(thing.role());
    line += " \"" + textOf(thing, QAccessible::Name) + '"';
    const auto state = thing.state();
    if (state.checkable) {
        line += state.checked ? " on" : " off";
    }
    if (auto* const value = thing.valueInterface()) {
        line += QStringLiteral(" = %1, %2 to %3")
                    .arg(value->currentValue().toDouble())
                    .arg(value->minimumValue().toDouble())
                    .arg(value->maximumValue().toDouble())
                    .toStdString();
    }
    if (const auto description = textOf(thing, QAccessible::Description); !description.empty()) {
        line += " (" + description + ')';
    }
    return line;
}

void appendTree(QAccessibleInterface& thing, int depth, std::string& text) {
    if (thing.state().invisible) {
        return;
    }
    text += std::string(static_cast<std::size_t>(depth) * 4, ' ') + spoken(thing) + '\n';
    for (int i = 0; i < thing.childCount(); ++i) {
        appendTree(*thing.child(i), depth + 1, text);
    }
}

class Accessibility : public testing::Test {
protected:
    Accessibility() {
        fillEveryCard(*dashboard.monitor);
        dashboard.computer.folders.helperResources = "/somewhere";
        view.emplace(dashboard);
        QAccessible::setActive(true);
    }

    void TearDown() override { QAccessible::setActive(false); }

    [[nodiscard]] std::string tree() {
        std::string text;
        auto* const window = QAccessible::queryAccessibleInterface(&view->window());
        for (int i = 0; i < window->childCount(); ++i) {
            appendTree(*window->child(i), 0, text);
        }
        return text;
    }

    [[nodiscard]] QAccessibleInterface* find(QAccessible::Role role, const QString& name) {
        return find(QAccessible::queryAccessibleInterface(&view->window()), role, name);
    }

    static QAccessibleInterface* find(QAccessibleInterface* thing, QAccessible::Role role,
                                      const QString& name) {
        if (thing->role() == role && thing->text(QAccessible::Name) == name && !thing->state().invisible) {
            return thing;
        }
        for (int i = 0; i < thing->childCount(); ++i) {
            if (auto* const found = find(thing->child(i), role, name)) {
                return found;
            }
        }
        return nullptr;
    }

    // Does what assistive technology can have a control do.
    void act(QAccessible::Role role, const QString& name, const QString& action) {
        auto* const control = find(role, name);
        ASSERT_NE(control, nullptr) << testing::PrintToString(name);
        auto* const actions = control->actionInterface();
        ASSERT_NE(actions, nullptr) << testing::PrintToString(name);
        EXPECT_TRUE(actions->actionNames().contains(action)) << testing::PrintToString(name);
        actions->doAction(action);
        view->settle();
    }

    void press(std::string_view name) {
        act(QAccessible::Button, qString(name), QAccessibleActionInterface::pressAction());
    }

    [[nodiscard]] bool isOn(QAccessible::Role role, const QString& name) {
        const auto* const control = find(role, name);
        return control != nullptr && control->state().checked;
    }

    MadeUpDashboard dashboard;
    PowerMonitor& monitor = *dashboard.monitor;
    std::optional<ShownView> view;
};

TEST_F(Accessibility, OfTheDashboardIsWhatIsWrittenDown) {
    expectGolden(tree(), "ui/view/accessible/dashboard.txt");
}

TEST_F(Accessibility, OfADesktopWithoutHelperIsWhatIsWrittenDown) {
    monitor.hasBattery = false;
    monitor.topProcesses = std::vector<ProcessInfo_Energy>{};
    monitor.historyData = std::vector<HistoryDataPoint>{};
    monitor.powerHistory = std::vector<double>{};
    view->settle();
    expectGolden(tree(), "ui/view/accessible/desktop.txt");
}

TEST_F(Accessibility, OfTheSettingsIsWhatIsWrittenDown) {
    view->showSettings();
    expectGolden(tree(), "ui/view/accessible/settings.txt");
}

TEST_F(Accessibility, OfAQuestionIsWhatIsWrittenDown) {
    view->root().setProperty("showUninstallConfirm", true);
    view->settle();
    expectGolden(tree(), "ui/view/accessible/question.txt");
}

TEST_F(Accessibility, OfTheRestWaitsForTheAnswerToAQuestion) {
    const auto processes = monitor.topProcesses.get();
    for (const bool settings : {false, true}) {
        view->showSettings(settings);
        const auto before = tree();
        monitor.shouldShowChargingTip = true;
        view->settle();
        EXPECT_THAT(tree(), testing::StartsWith("Dialog"));
        EXPECT_THAT(tree(), testing::Not(testing::HasSubstr("Grouping")));
        monitor.topProcesses = std::vector<ProcessInfo_Energy>{{"arrived meanwhile", 1, 1}};
        view->settle();
        EXPECT_THAT(tree(), testing::Not(testing::HasSubstr("arrived meanwhile")));
        monitor.topProcesses = processes;
        monitor.shouldShowChargingTip = false;
        view->settle();
        EXPECT_EQ(tree(), before);
    }
}

TEST_F(Accessibility, PressesEveryButton) {
    press(words::settings);
    press(words::back);
    press(words::settings);
    press(words::closeSettings);
    EXPECT_FALSE(view->root().property("showSettings").toBool());
    press(words::quit);
    EXPECT_EQ(dashboard.quits, 1);
    view->showSettings();
    press(helperSection(monitor).button.text);
    EXPECT_FALSE(monitor.daemonInstalled);
    press(helperSection(monitor).button.text);
    EXPECT_TRUE(monitor.daemonInstalled);
    press(uninstallSection().button.text.text);
    press(uninstallConfirmation().cancel);
    press(uninstallSection().button.text.text);
    press(uninstallConfirmation().action);
    EXPECT_EQ(dashboard.quits, 2);
}

TEST_F(Accessibility, InstallsTheHelperFromItsCard) {
    monitor.daemonInstalled = false;
    view->settle();
    press(chargeLimitCard(monitor, linuxWords).offer->installButton.text.text);
    EXPECT_TRUE(monitor.daemonInstalled);
}

TEST_F(Accessibility, TurnsEverySwitch) {
    const auto turn = [&](const Text& text) {
        const auto name = qString(text.text);
        const bool before = isOn(QAccessible::CheckBox, name);
        act(QAccessible::CheckBox, name, QAccessibleActionInterface::toggleAction());
        EXPECT_NE(isOn(QAccessible::CheckBox, name), before) << testing::PrintToString(name);
    };
    dashboard.computer.preferences.setFlag(preference_keys::hasShownChargingTip, true);
    for (const bool enabled : {false, true}) {
        turn(chargeLimitCard(monitor, linuxWords).title);
        EXPECT_EQ(monitor.chargeLimitEnabled, enabled);
    }
    view->showSettings();
    turn(generalSection(monitor).launchAtLogin.title);
    turn(generalSection(monitor).launchAtLogin.title);
    EXPECT_THAT(dashboard.computer.login.wishes, ElementsAre("register", "unregister"));
    turn(calibrationSection(monitor, 0, daysFromNow).autoCalibrate.title);
    EXPECT_FALSE(monitor.calibrationEnabled);
}

TEST_F(Accessibility, PressesASwitchAsWell) {
    act(QAccessible::CheckBox, qString(chargeLimitCard(monitor, linuxWords).title.text),
        QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(monitor.chargeLimitEnabled);
}

TEST_F(Accessibility, ChoosesFromEveryRow) {
    const auto choose = [&](std::string_view text) {
        const auto name = qString(text);
        act(QAccessible::RadioButton, name, QAccessibleActionInterface::pressAction());
        EXPECT_TRUE(isOn(QAccessible::RadioButton, name)) << testing::PrintToString(name);
    };
    choose("24h");
    EXPECT_EQ(monitor.historyRange.get(), TimeRange::twentyFourHours);
    EXPECT_FALSE(isOn(QAccessible::RadioButton, "30m"));
    view->showSettings();
    choose(generalSection(monitor).menuBarDisplay.choices[4].text);
    EXPECT_EQ(monitor.menuBarDisplay.get(), MenuBarDisplay::temperature);
    choose(calibrationSection(monitor, 0, daysFromNow).frequency.choices[1].text);
    EXPECT_EQ(monitor.calibrationIntervalDays, 14);
}

TEST_F(Accessibility, MovesTheSlider) {
    const auto name = qString(chargeLimitCard(monitor, linuxWords).stopLevel->stopAt[0].text);
    act(QAccessible::Slider, name, QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(monitor.chargeLimitPercent, 85.0);
    act(QAccessible::Slider, name, QAccessibleActionInterface::decreaseAction());
    act(QAccessible::Slider, name, QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(monitor.chargeLimitPercent, 75.0);
    EXPECT_EQ(dashboard.computer.helper.writes, 3);
    auto* const value = find(QAccessible::Slider, name)->valueInterface();
    EXPECT_EQ(value->currentValue().toDouble(), 75);
    EXPECT_EQ(value->minimumStepSize().toDouble(), 5);
}

TEST_F(Accessibility, SetsTheSliderToTheNearestStep) {
    const auto name = qString(chargeLimitCard(monitor, linuxWords).stopLevel->stopAt[0].text);
    const std::pair<double, double> wishes[] = {{60, 60}, {83, 85}, {82, 80}, {500, 100}, {-3, 20}, {81, 80}};
    for (const auto& [wish, level] : wishes) {
        auto* const value = find(QAccessible::Slider, name)->valueInterface();
        value->setCurrentValue(wish);
        EXPECT_EQ(monitor.chargeLimitPercent, level);
        view->settle();
        EXPECT_EQ(value->currentValue().toDouble(), level);
    }
    EXPECT_EQ(decodeDaemonConfig(*dashboard.computer.helper.configText)->chargeLimitPercent, 80);
}

TEST_F(Accessibility, ReadsOutTheSampleThatIsLookedAt) {
    const auto charts = visibleItems(view->root(), "ChartItem");
    ASSERT_EQ(charts.size(), 2U);
    auto* const chart = find(QAccessible::Chart, qString(trendCard(monitor)->title.text));
    EXPECT_EQ(chart->text(QAccessible::Description), "");
    QMetaObject::invokeMethod(charts.front(), "hover", Q_ARG(int, 4));
    EXPECT_EQ(chart->text(QAccessible::Description), "21.0W  now");
}

} // namespace
} // namespace quelby
