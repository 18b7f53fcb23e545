import QtQuick
import Quelby
import Quelby.Bridge

DashboardTestCase {
    name: "Charts"

    function frame(card) {
        const found = one(ChartFrame, one(card))
        view.reveal(found)
        settle()
        return found
    }

    function test_trendReadsOutTheSampleUnderThePointer() {
        const trend = frame(TrendCard)
        const places = [[0, "20.0W  12s ago"], [94, "24.0W  9s ago"], [188, "19.0W  6s ago"], [343, "21.0W  now"]]
        for (const [x, readOut] of places) {
            mouseMove(trend, x, 30)
            compare(trend.chart.readOut, readOut)
        }
        mouseMove(trend, 100, -30)
        compare(trend.chart.readOut, "")
    }

    function test_historyReadsOutThePointUnderThePointer() {
        const history = frame(HistoryCard)
        const places = [[0, "12.0W  21:56"], [125, "22.0W  22:01"], [343, "21.0W  22:11"]]
        for (const [x, readOut] of places) {
            mouseMove(history, x, 50)
            compare(history.chart.readOut, readOut)
        }
    }

    function test_readOutIsDrawnWhereThePointerIs() {
        const trend = frame(TrendCard)
        const before = grabImage(view)
        mouseMove(trend, 188, 30)
        const pointed = grabImage(view)
        verify(!before.equals(pointed))
        mouseMove(trend, 188, -30)
        verify(before.equals(grabImage(view)))
    }

    function test_keyboardWalksAlongTheSamples() {
        const trend = frame(TrendCard)
        trend.forceActiveFocus(Qt.TabFocusReason)
        const steps = [
            [Qt.Key_Left, 4], [Qt.Key_Left, 3], [Qt.Key_Right, 4], [Qt.Key_Right, 4], [Qt.Key_Left, 3]
        ]
        for (const [key, index] of steps) {
            keyClick(key)
            compare(trend.chart.hoverIndex, index)
        }
        for (let i = 0; i < 9; ++i) {
            keyClick(Qt.Key_Left)
        }
        compare(trend.chart.hoverIndex, 0)
        keyClick(Qt.Key_Tab)
        compare(trend.chart.hoverIndex, -1)
    }

    function test_keyboardBeginsAtTheOldestWhenItGoesForward() {
        const history = frame(HistoryCard)
        history.forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Right)
        compare(history.chart.readOut, "12.0W  21:56")
    }

    function test_chartsAreAsHighAndWideAsTheyShouldBe() {
        const trend = frame(TrendCard)
        compare(trend.height, 60)
        compare(trend.width, 400 - 2 * 16 - 2 * 12)
        const history = frame(HistoryCard)
        compare(history.height, 100)
        compare(history.chart.width, history.width + 2 * history.chart.overhang)
    }

    function test_dotHasTheColourOfTheNewestSample() {
        const trend = frame(TrendCard)
        for (const [watts, ink] of [[5, Ink.Green], [15, Ink.Yellow], [25, Ink.Orange], [35, Ink.Red]]) {
            set("powerHistory", [1, 2, watts])
            compare(trend.chart.dotColor, Theme.fills[ink])
        }
    }

    function test_pointerOverAChartStillScrolls() {
        const trend = frame(TrendCard)
        const top = view.scrollTop
        mouseWheel(trend, 100, 30, 0, -240)
        tryVerify(() => view.scrollTop > top)
    }
}
