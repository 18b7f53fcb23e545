import QtQuick
import Quelby
import Quelby.Bridge

DashboardTestCase {
    name: "Controls"

    readonly property var ways: ({
        pointer: click,
        space: control => press(control, Qt.Key_Space),
        enter: control => press(control, Qt.Key_Return),
        keypad: control => press(control, Qt.Key_Enter)
    })

    // For every test: what a person does with a control in each of the ways.
    function init_data() {
        return Object.keys(ways).map(way => ({ tag: way, act: ways[way] }))
    }

    function limitSwitch() {
        return named(ToggleSwitch, said.chargeLimit.title.text)
    }

    function test_aHelperOfAnotherVersionIsOfferedAnUpdateInBothPlaces() {
        set("daemonInstalled", true)
        set("chargeLimitEnabled", true)
        madeUp.setHelperOutdated(true)
        settle()
        compare(all(ActionButton, one(ChargeLimitCard)).length, 1)
        compare(all(StepSlider, one(ChargeLimitCard)).length, 1)
        view.showSettings = true
        settle()
        compare(all(ActionButton, one(HelperSection)).length, 2)
        madeUp.setHelperOutdated(false)
        settle()
        compare(all(ActionButton, one(HelperSection)).length, 1)
    }

    function test_chargeLimitIsSwitched(way) {
        way.act(limitSwitch())
        verify(!config().chargeLimitEnabled)
        verify(!limitSwitch().on)
        compare(all(StepSlider).length, 0)
        way.act(limitSwitch())
        verify(config().chargeLimitEnabled)
        compare(all(StepSlider).length, 1)
        compare(madeUp.configWrites, 2)
    }

    function test_helperIsInstalledFromTheCard(way) {
        set("daemonInstalled", false)
        compare(all(StepSlider).length, 0)
        const install = said.chargeLimit.offer.installButton.text.text
        madeUp.administratorAgrees = false
        way.act(named(ActionButton, install))
        verify(has(install))
        madeUp.administratorAgrees = true
        way.act(named(ActionButton, install))
        compare(madeUp.scripts.length, 2)
        verify(!has(install))
        compare(all(StepSlider).length, 1)
    }

    function test_aRangeIsChosen(way) {
        for (const range of ["7d", "24h", "1h", "30m"]) {
            way.act(named(ChoiceButton, range))
            compare(madeUp.field("historyRange"), range)
            compare(all(ChoiceButton).filter(button => button.choice.selected).map(button => button.choice.text),
                    [range])
        }
    }

    function test_programIsStartedAtLogin(way) {
        showSettings()
        const launch = said.settings.general.launchAtLogin.title.text
        way.act(named(ToggleSwitch, launch))
        verify(named(ToggleSwitch, launch).on)
        way.act(named(ToggleSwitch, launch))
        compare(madeUp.loginWishes, ["register", "unregister"])
    }

    function test_aDisplayIsChosen(way) {
        showSettings()
        const displays = ["Power (W)", "Battery %", "Current (mA)", "Voltage (V)", "Temperature", "Icon Only"]
        for (const index of [1, 2, 3, 4, 5, 0]) {
            way.act(choice(GeneralSection, index))
            compare(madeUp.field("menuBarDisplay"), displays[index])
            verify(choice(GeneralSection, index).choice.selected)
        }
    }

    function test_calibrationIsSwitched(way) {
        showSettings()
        const calibrate = said.settings.calibration.autoCalibrate.title.text
        way.act(named(ToggleSwitch, calibrate))
        verify(!config().calibrationEnabled)
        way.act(named(ToggleSwitch, calibrate))
        verify(config().calibrationEnabled)
        compare(config().calibrationIntervalDays, 30)
    }

    function test_anIntervalIsChosenWhichSwitchesTheCalibrationOn(way) {
        showSettings()
        for (const [index, days] of [7, 14, 30, 60].entries()) {
            set("calibrationEnabled", false)
            way.act(choice(CalibrationSection, index))
            compare(config().calibrationIntervalDays, days)
            verify(config().calibrationEnabled)
            verify(one(ToggleSwitch, one(CalibrationSection)).on)
        }
    }

    function test_helperIsUninstalledAndInstalledAgain(way) {
        showSettings()
        const installed = said.settings.helper.status.text.text
        verify(has(installed))
        way.act(named(ActionButton, said.settings.helper.button.text))
        verify(!has(installed))
        verify(has(said.settings.helper.status.text.text))
        compare(madeUp.field("chargeLimitEnabled"), false)
        way.act(named(ActionButton, said.settings.helper.button.text))
        verify(has(installed))
        compare(madeUp.scripts.length, 2)
    }

    function test_programQuits(way) {
        way.act(one(QuitButton))
        compare(madeUp.quits, 1)
        showSettings()
        way.act(one(QuitButton))
        compare(madeUp.quits, 2)
    }
}
