import QtQuick
import Quelby
import Quelby.Bridge

DashboardTestCase {
    name: "Dialogs"

    function dialog() {
        return one(ConfirmDialog)
    }

    function closed() {
        return all(ConfirmDialog).length === 0
    }

    function showTip() {
        set("shouldShowChargingTip", true)
    }

    function showUninstall() {
        showSettings()
        click(one(ActionButton, one(UninstallSection)))
    }

    function test_showsTheTipWhenTheLimitIsFirstSwitchedOn() {
        set("chargeLimitEnabled", false)
        verify(closed())
        click(named(ToggleSwitch, said.chargeLimit.title.text))
        const tip = said.chargingTip
        compare(texts(dialog()), [tip.title, tip.message, tip.cancel, tip.action])
    }

    function test_theTipIsClosed_data() {
        return [
            { tag: "pointer", close: () => click(named(ActionButton, said.chargingTip.cancel)) },
            { tag: "keyboard", close: () => { keyClick(Qt.Key_Return); settle() } },
            { tag: "blank", close: () => { keyClick(Qt.Key_Space); settle() } },
            { tag: "escape", close: () => { keyClick(Qt.Key_Escape); settle() } }
        ]
    }

    function test_theTipIsClosed(way) {
        showTip()
        way.close()
        verify(closed())
        compare(madeUp.field("shouldShowChargingTip"), false)
        compare(madeUp.batterySettingsOpened, 0)
    }

    function test_theTipLeadsToTheBatterySettings() {
        for (const act of [click, button => press(button, Qt.Key_Return)]) {
            showTip()
            act(named(ActionButton, said.chargingTip.action))
            verify(closed())
            compare(madeUp.field("shouldShowChargingTip"), false)
        }
        compare(madeUp.batterySettingsOpened, 2)
    }

    function test_theTipIsClosedFromElsewhere() {
        showTip()
        set("shouldShowChargingTip", false)
        verify(closed())
    }

    function test_nothingIsUninstalledWithoutAnAnswer() {
        showUninstall()
        compare(texts(dialog()).slice(0, 1), [said.uninstallConfirmation.title])
        compare(madeUp.scripts.length, 0)
        compare(madeUp.quits, 0)
    }

    function test_nothingIsUninstalledOnCancel_data() {
        return [
            { tag: "pointer", close: () => click(named(ActionButton, said.uninstallConfirmation.cancel)) },
            { tag: "keyboard", close: () => { keyClick(Qt.Key_Return); settle() } },
            { tag: "escape", close: () => { keyClick(Qt.Key_Escape); settle() } }
        ]
    }

    function test_nothingIsUninstalledOnCancel(way) {
        showUninstall()
        way.close()
        verify(closed())
        verify(!view.showUninstallConfirm)
        compare(madeUp.scripts.length, 0)
        compare(madeUp.loginWishes, [])
        compare(madeUp.quits, 0)
    }

    function test_everythingIsUninstalledOnlyWhenThatIsChosen() {
        for (const act of [click, button => press(button, Qt.Key_Space)]) {
            showUninstall()
            act(named(ActionButton, said.uninstallConfirmation.action))
            verify(closed())
            wait(0)
        }
        compare(madeUp.scripts.length, 2)
        compare(madeUp.loginWishes, ["unregister", "unregister"])
        compare(madeUp.quits, 2)
    }

    function test_theQuestionIsGoneFromTheScreenBeforeThePasswordIsAskedFor() {
        showUninstall()
        const behind = grabImage(view).pixel(200, 640)
        const button = named(ActionButton, said.uninstallConfirmation.action)
        mouseClick(button)
        verify(closed())
        compare(madeUp.scripts.length, 0)
        compare(madeUp.quits, 0)
        settle() // draws
        verify(!Qt.colorEqual(grabImage(view).pixel(200, 640), behind))
        wait(0)
        compare(madeUp.scripts.length, 1)
        compare(madeUp.quits, 1)
    }

    function test_aQuestionLeftOpenDoesNotComeBack_data() {
        const dashboard = () => { view.showSettings = false; settle() }
        const close = () => { view.dashboard.watched = false; view.dashboard.watched = true; settle() }
        return [
            { tag: "cards instead", leave: dashboard, settings: false },
            { tag: "closed", leave: close, settings: true },
            { tag: "closed and cards", leave: () => { close(); dashboard() }, settings: false }
        ]
    }

    function test_aQuestionLeftOpenDoesNotComeBack(row) {
        showUninstall()
        row.leave()
        verify(closed())
        compare(view.showSettings, row.settings)
        showSettings()
        verify(closed())
        compare(madeUp.scripts.length, 0)
        click(one(ActionButton, one(UninstallSection)))
        verify(!closed())
    }

    function test_theHarmlessAnswerHasTheFocusFirst() {
        showUninstall()
        verify(named(ActionButton, said.uninstallConfirmation.cancel).activeFocus)
        view.showUninstallConfirm = false
        showTip()
        verify(named(ActionButton, said.chargingTip.cancel).activeFocus)
    }

    function test_tabStaysInside() {
        showUninstall()
        const answers = [said.uninstallConfirmation.cancel, said.uninstallConfirmation.action]
        for (let i = 1; i < 6; ++i) {
            keyClick(Qt.Key_Tab)
            verify(named(ActionButton, answers[i % 2]).activeFocus)
        }
        for (let i = 0; i < 5; ++i) {
            keyClick(Qt.Key_Backtab)
            verify(named(ActionButton, answers[i % 2]).activeFocus)
        }
    }

    function test_nothingBehindCanBeClicked() {
        showTip()
        const behind = named(PlainButton, Words.settings)
        mouseClick(behind)
        settle()
        verify(!view.showSettings)
        verify(!closed())
        mouseWheel(view, 200, 100, 0, -240)
        wait(0)
        compare(view.scrollTop, 0)
    }

    function test_nothingBehindIsScrolledByTheKeyboard() {
        showTip()
        for (const key of [Qt.Key_Down, Qt.Key_PageDown, Qt.Key_End]) {
            keyClick(key)
            compare(view.scrollTop, 0)
        }
    }

    function test_keyboardIsBackWhereItWasAfterwards() {
        const limit = named(ToggleSwitch, said.chargeLimit.title.text)
        press(limit, Qt.Key_Space)
        press(limit, Qt.Key_Space)
        verify(!closed())
        keyClick(Qt.Key_Escape)
        settle()
        verify(limit.activeFocus)
        keyClick(Qt.Key_End)
        verify(view.scrollTop > 0)
    }

    function test_isWithinTheView() {
        showTip()
        for (const text of all(Text, dialog())) {
            const place = placeOf(text)
            verify(place.x >= 16 && place.x + text.width <= 400 - 16)
            verify(place.y >= 16 && place.y + text.height <= 660 - 16)
            verify(!text.truncated)
        }
    }
}
