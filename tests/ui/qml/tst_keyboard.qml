import QtQuick
import Quelby
import Quelby.Bridge

DashboardTestCase {
    name: "Keyboard"

    function focused() {
        return view.Window.window.activeFocusItem
    }

    function nameOf(item) {
        return item.name ?? item.choice?.text ?? ""
    }

    // What Tab reaches before it begins anew with the item of the name.
    function roundOfTab(key, first) {
        const names = [first]
        for (let i = 0; nameOf(focused()) !== first && i < 50; ++i) {
            keyClick(key)
        }
        for (keyClick(key); nameOf(focused()) !== first && names.length < 50; keyClick(key)) {
            names.push(nameOf(focused()))
        }
        return names
    }

    function choices(card) {
        return all(ChoiceButton, one(card)).map(nameOf)
    }

    function quit() {
        return said.quitButton.text.text
    }

    function today() {
        return Words.energyButtonName(said.history.today.text)
    }

    function dashboard() {
        return [Words.settings, said.chargeLimit.title.text, one(StepSlider).name, said.trend.title.text,
                today(), ...choices(HistoryCard), said.history.title.text, quit()]
    }

    function settings() {
        const { general, calibration, helper, uninstall } = said.settings
        return [Words.back, Words.closeSettings, general.launchAtLogin.title.text, ...choices(GeneralSection),
                calibration.autoCalibrate.title.text, ...choices(CalibrationSection), helper.button.text,
                uninstall.button.text.text, quit()]
    }

    function test_tabReachesEverythingInTheOrderInWhichItIsRead() {
        compare(dashboard().length, 11)
        compare(roundOfTab(Qt.Key_Tab, Words.settings), dashboard())
        showSettings()
        compare(settings().length, 17)
        compare(roundOfTab(Qt.Key_Tab, Words.back), settings())
    }

    function test_backtabGoesTheSameWayBack() {
        compare(roundOfTab(Qt.Key_Backtab, quit()), dashboard().reverse())
    }

    function test_tabPassesOverWhatIsNotThere() {
        set("hasBattery", false)
        set("powerHistory", [])
        set("historyData", [])
        compare(roundOfTab(Qt.Key_Tab, Words.settings), [Words.settings, today(), ...choices(HistoryCard), quit()])
    }

    function test_whatHasTheFocusIsInSightAndShowsIt_data() {
        return [
            { tag: "dashboard", settings: false, count: 11 },
            { tag: "settings", settings: true, count: 17 }
        ]
    }

    function test_whatHasTheFocusIsInSightAndShowsIt(row) {
        view.showSettings = row.settings
        settle()
        for (const key of [Qt.Key_Tab, Qt.Key_Backtab]) {
            view.forceActiveFocus()
            for (let i = 0; i < row.count; ++i) {
                keyClick(key)
                settle()
                const top = placeOf(focused()).y
                verify(top >= 0 && top + focused().height <= 660, nameOf(focused()))
                const rings = all(FocusRing)
                compare(rings.length, 1, nameOf(focused()))
                verify(isBelow(rings[0], focused()))
            }
        }
    }

    function isBelow(item, ancestor) {
        return item === ancestor || (item && isBelow(item.parent, ancestor))
    }

    function test_thePointerLeavesNoRing() {
        click(named(ToggleSwitch, said.chargeLimit.title.text))
        compare(all(FocusRing).length, 0)
    }

    function test_scrollsByKeys() {
        const moves = [
            [Qt.Key_Down, 40], [Qt.Key_Down, 80], [Qt.Key_Up, 40], [Qt.Key_PageDown, 40 + 620],
            [Qt.Key_PageUp, 40], [Qt.Key_PageUp, 0], [Qt.Key_Up, 0]
        ]
        for (const [key, top] of moves) {
            keyClick(key)
            compare(view.scrollTop, top)
        }
        keyClick(Qt.Key_End)
        const end = view.scrollTop
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_PageDown)
        compare(view.scrollTop, end)
        keyClick(Qt.Key_Home)
        compare(view.scrollTop, 0)
    }

    function test_scrollsWhileAButtonHasTheFocus() {
        keyClick(Qt.Key_Tab)
        keyClick(Qt.Key_PageDown)
        verify(view.scrollTop > 0)
    }

    function test_keepsOtherKeysForWhoeverShowsTheView() {
        let seen = []
        const outer = createTemporaryQmlObject(
            "import QtQuick; FocusScope { property var seen: []; Keys.onPressed: e => { seen.push(e.key); e.accepted = true } }",
            this)
        view.parent = outer
        view.forceActiveFocus()
        keyClick(Qt.Key_Escape)
        keyClick(Qt.Key_Q)
        keyClick(Qt.Key_PageDown)
        compare(outer.seen, [Qt.Key_Escape, Qt.Key_Q])
    }
}
