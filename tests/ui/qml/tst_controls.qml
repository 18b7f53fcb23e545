import QtQuick
import Quelby

DashboardTestCase {
    name: "Controls"

    readonly property var ways: ({
        pointer: click,
        space: control => press(control, Qt.Key_Space),
        enter: control => press(control, Qt.Key_Return),
        keypad: control => press(control, Qt.Key_Enter)
    })

    function eachWay() {
        return Object.keys(ways).map(way => ({ tag: way, act: ways[way] }))
    }

    function limitSwitch() {
        return named(ToggleSwitch, "Charge Limit")
    }

    function test_chargeLimitIsSwitched_data() {
        return eachWay()
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

    function test_aSwitchShowsWhatIsAndNotWhatWasClicked() {
        const refusing = createTemporaryQmlObject("import Quelby; ToggleSwitch { name: ''; on: false }", view)
        mouseClick(refusing)
        keyClick(Qt.Key_Space)
        verify(!refusing.on)
        const knob = refusing.contentItem.children[0]
        verify(knob.x < refusing.width / 2 - knob.width / 2)
    }

    function test_aSwitchFollowsTheModel() {
        set("chargeLimitEnabled", false)
        verify(!limitSwitch().on)
        set("chargeLimitEnabled", true)
        verify(limitSwitch().on)
    }

    function test_helperIsInstalledFromTheCard_data() {
        return eachWay()
    }

    function test_helperIsInstalledFromTheCard(way) {
        set("daemonInstalled", false)
        compare(all(StepSlider).length, 0)
        madeUp.administratorAgrees = false
        way.act(named(ActionButton, "Install Helper (one-time password)"))
        verify(has("Install Helper (one-time password)"))
        madeUp.administratorAgrees = true
        way.act(named(ActionButton, "Install Helper (one-time password)"))
        compare(madeUp.scripts.length, 2)
        verify(!has("Install Helper (one-time password)"))
        compare(all(StepSlider).length, 1)
    }

    function test_aRangeIsChosen_data() {
        return eachWay()
    }

    function test_aRangeIsChosen(way) {
        for (const range of ["7d", "24h", "1h", "30m"]) {
            way.act(named(ChoiceButton, range))
            compare(madeUp.field("historyRange"), range)
            compare(all(ChoiceButton).filter(button => button.choice.selected).map(button => button.choice.text),
                    [range])
        }
    }

    function test_programIsStartedAtLogin_data() {
        return eachWay()
    }

    function test_programIsStartedAtLogin(way) {
        showSettings()
        way.act(named(ToggleSwitch, "Launch at Login"))
        verify(named(ToggleSwitch, "Launch at Login").on)
        way.act(named(ToggleSwitch, "Launch at Login"))
        compare(madeUp.loginWishes, ["register", "unregister"])
    }

    function test_aDisplayIsChosen_data() {
        return eachWay()
    }

    function test_aDisplayIsChosen(way) {
        showSettings()
        const displays = {
            "Battery%": "Battery %", "mA": "Current (mA)", "Volts": "Voltage (V)", "Temp": "Temperature",
            "Icon": "Icon Only", "Watts": "Power (W)"
        }
        for (const label in displays) {
            way.act(named(ChoiceButton, label))
            compare(madeUp.field("menuBarDisplay"), displays[label])
            verify(named(ChoiceButton, label).choice.selected)
        }
    }

    function test_calibrationIsSwitched_data() {
        return eachWay()
    }

    function test_calibrationIsSwitched(way) {
        showSettings()
        way.act(named(ToggleSwitch, "Auto Calibrate"))
        verify(!config().calibrationEnabled)
        way.act(named(ToggleSwitch, "Auto Calibrate"))
        verify(config().calibrationEnabled)
        compare(config().calibrationIntervalDays, 30)
    }

    function test_anIntervalIsChosenWhichSwitchesTheCalibrationOn_data() {
        return eachWay()
    }

    function test_anIntervalIsChosenWhichSwitchesTheCalibrationOn(way) {
        showSettings()
        const intervals = { "1 Week": 7, "2 Weeks": 14, "1 Month": 30, "2 Months": 60 }
        for (const label in intervals) {
            set("calibrationEnabled", false)
            way.act(named(ChoiceButton, label))
            compare(config().calibrationIntervalDays, intervals[label])
            verify(config().calibrationEnabled)
            verify(named(ToggleSwitch, "Auto Calibrate").on)
        }
    }

    function test_helperIsUninstalledAndInstalledAgain_data() {
        return eachWay()
    }

    function test_helperIsUninstalledAndInstalledAgain(way) {
        showSettings()
        verify(has("Helper installed & running"))
        way.act(named(ActionButton, "Uninstall"))
        verify(has("Helper not installed"))
        compare(madeUp.field("chargeLimitEnabled"), false)
        way.act(named(ActionButton, "Install"))
        verify(has("Helper installed & running"))
        compare(madeUp.scripts.length, 2)
    }

    function test_programQuits_data() {
        return eachWay()
    }

    function test_programQuits(way) {
        way.act(one(QuitButton))
        compare(madeUp.quits, 1)
        showSettings()
        way.act(one(QuitButton))
        compare(madeUp.quits, 2)
    }

    function test_aButtonGivesWayUnderThePointer() {
        const button = named(PlainButton, "Settings")
        mousePress(button)
        verify(button.opacity < 1)
        mouseMove(button, -40, 60)
        mouseRelease(view, 200, 200)
        compare(button.opacity, 1)
        verify(!view.showSettings)
    }
}
