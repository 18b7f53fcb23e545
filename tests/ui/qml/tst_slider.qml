import QtQuick
import Quelby

DashboardTestCase {
    name: "StepSlider"

    property StepSlider slider

    function find() {
        slider = one(StepSlider)
    }

    function xOf(percent) {
        const handle = slider.handle.width
        return handle / 2 + (percent - 20) / 80 * (slider.width - handle)
    }

    // From where the handle is, a point at a time.
    function drag(to) {
        const from = xOf(slider.value)
        const y = slider.height / 2
        const step = to > from ? 1 : -1
        mousePress(slider, from, y)
        for (let x = from; (to - x) * step > 0; x += step) {
            mouseMove(slider, x, y)
            settle()
        }
        mouseRelease(slider, to, y)
        settle()
    }

    function level() {
        return madeUp.field("chargeLimitPercent")
    }

    function test_tellsEachStepOfADragOnce() {
        find()
        drag(xOf(20))
        compare(level(), 20)
        compare(config().chargeLimitPercent, 20)
        compare(madeUp.configWrites, 12)
        drag(xOf(100))
        compare(level(), 100)
        compare(madeUp.configWrites, 12 + 16)
    }

    function test_isNeverDraggedBeyondItsEnds() {
        find()
        drag(-150)
        compare(level(), 20)
        compare(madeUp.configWrites, 12)
        drag(slider.width + 150)
        compare(level(), 100)
        compare(madeUp.configWrites, 12 + 16)
        verify(has("100%"))
    }

    function test_isWhereItWasWhenTheCardComesBack() {
        set("chargeLimitPercent", 65)
        set("hasBattery", false)
        compare(all(StepSlider).length, 0)
        set("hasBattery", true)
        find()
        compare([slider.from, slider.to, slider.value], [20, 100, 65])
        set("chargeLimitEnabled", false)
        set("chargeLimitEnabled", true)
        compare([slider.from, slider.to, slider.value], [20, 100, 65])
        compare(madeUp.configWrites, 0)
    }

    function test_endsWhereItWasLastToldToGo() {
        find()
        const y = slider.height / 2
        mousePress(slider, xOf(80), y)
        mouseMove(slider, xOf(85), y)
        mouseMove(slider, xOf(80), y)
        mouseRelease(slider, xOf(80), y)
        settle()
        compare(level(), 80)
        compare(slider.value, 80)
        slider.increase()
        slider.decrease()
        settle()
        compare(level(), 80)
        compare(slider.value, 80)
        compare(madeUp.configWrites, 4)
    }

    function test_jumpsToWhereItIsClicked() {
        find()
        mouseClick(slider, xOf(60) + 1, slider.height / 2)
        settle()
        compare(level(), 60)
        compare(madeUp.configWrites, 1)
    }

    function test_stepsWithTheKeyboard() {
        find()
        slider.forceActiveFocus(Qt.TabFocusReason)
        const steps = [[Qt.Key_Right, 85], [Qt.Key_Right, 90], [Qt.Key_Left, 85], [Qt.Key_Left, 80]]
        for (const [key, percent] of steps) {
            keyClick(key)
            settle()
            compare(level(), percent)
        }
        compare(madeUp.configWrites, 4)
        compare(view.scrollTop, 0)
    }

    function test_isNeverSteppedBeyondItsEnds() {
        find()
        slider.forceActiveFocus(Qt.TabFocusReason)
        for (let i = 0; i < 20; ++i) {
            keyClick(Qt.Key_Right)
            settle()
        }
        compare(level(), 100)
        compare(madeUp.configWrites, 4)
        for (let i = 0; i < 20; ++i) {
            keyClick(Qt.Key_Left)
            settle()
        }
        compare(level(), 20)
        compare(madeUp.configWrites, 4 + 16)
    }

    function test_followsTheModelWithoutTellingIt() {
        find()
        for (const percent of [50, 95, 20]) {
            set("chargeLimitPercent", percent)
            compare(slider.value, percent)
        }
        keyClick(Qt.Key_Tab)
        compare(madeUp.configWrites, 0)
    }

    function test_keepsALevelThatOthersSetBeyondItsEnds() {
        for (const percent of [10, 120, 77]) {
            set("chargeLimitPercent", percent)
            verify(has(percent + "%"))
            view.destroy()
            makeView()
            compare(madeUp.configWrites, 0)
            compare(level(), percent)
        }
    }

    function test_stepsOntoTheScaleFromALevelBesideIt() {
        for (const [percent, up, down] of [[77, 80, 75], [82, 85, 80], [10, 25, 20], [120, 100, 95]]) {
            for (const [step, expected] of [["increase", up], ["decrease", down]]) {
                set("chargeLimitPercent", percent)
                find()
                slider[step]()
                settle()
                compare(slider.value, expected)
            }
        }
    }

    function test_followsTheModelAfterItWasDragged() {
        find()
        drag(xOf(60))
        set("chargeLimitPercent", 45)
        compare(slider.value, 45)
    }

    function test_isNamedWhereItsHandleWouldBe_data() {
        return [{ tag: "from the left", mirrored: false }, { tag: "from the right", mirrored: true }]
    }

    function test_isNamedWhereItsHandleWouldBe(row) {
        view.LayoutMirroring.enabled = row.mirrored
        settle()
        find()
        const card = one(ChargeLimitCard)
        const scale = all(Text, one(SliderScale))
        compare(scale.map(text => text.text), ["20%", "60%", "80%", "100%"])
        for (const [index, percent] of [20, 60, 80, 100].entries()) {
            set("chargeLimitPercent", percent)
            const handle = slider.handle.mapToItem(card, slider.handle.width / 2, 0)
            const text = scale[index].mapToItem(card, 0, 0)
            fuzzyCompare(text.x + scale[index].width / 2, handle.x, 0.01)
            verify(text.x >= 12 && text.x + scale[index].width <= card.width - 12)
        }
        const ends = [slider.handleCentre(0), slider.handleCentre(1)]
        compare(ends[0] > ends[1], row.mirrored)
    }

    function test_fillsUpToItsHandle() {
        find()
        for (const percent of [20, 60, 100]) {
            set("chargeLimitPercent", percent)
            const fill = slider.background.children[1]
            fuzzyCompare(fill.width, (percent - 20) / 80 * slider.width, 0.5)
            fuzzyCompare(slider.handle.x + slider.handle.width / 2, xOf(percent), 0.5)
        }
    }
}
