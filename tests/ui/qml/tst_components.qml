import QtQuick
import Quelby

DashboardTestCase {
    name: "Components"

    function textItem(text, root) {
        const found = all(Text, root).filter(item => item.text === text)
        verify(found.length > 0, text)
        return found[0]
    }

    function test_aCardLeavesItsMarginAroundItsElements() {
        const spacings = [
            [BatteryCard, 10], [ComponentCard, 8], [ProcessCard, 6], [TrendCard, 8], [HistoryCard, 10],
            [EfficiencyCard, 8], [BatteryDetailsCard, 8]
        ]
        for (const [type, spacing] of spacings) {
            const card = one(type)
            compare(card.spacing, spacing)
            compare(card.radius, 12)
            const first = all(CardTitle, card)[0]
            compare(first.mapToItem(card, 0, 0), Qt.point(12, 12))
        }
        showSettings()
        for (const [type, spacing] of [[GeneralSection, 10], [CalibrationSection, 10], [HelperSection, 8],
                                       [UninstallSection, 8]]) {
            compare(one(type).spacing, spacing)
        }
    }

    function test_componentsStandInColumns() {
        const rows = all(ComponentRow)
        compare(rows.length, 6)
        for (const row of rows) {
            const [label, bar, figure, detail] = Array.from(row.children)
            compare([label.width, figure.width, detail.width], [36, 38, 54])
            compare(bar.x, rows[0].children[1].x)
            compare(bar.width, rows[0].children[1].width)
            compare(figure.horizontalAlignment, Text.AlignRight)
        }
        compare(rows.map(row => texts(row)[0]), ["cpu", "graphics", "memory", "storage", "network", "TOTAL"])
    }

    function test_aBarIsFilledAsFarAsItsPartGoes() {
        const bar = one(ProportionBar, one(BatteryCard))
        const fill = bar.children[1]
        for (const percent of [0, 1, 50, 100]) {
            set("batteryPercent", percent)
            fuzzyCompare(fill.width, bar.width * percent / 100, 0.01)
            compare(fill.visible, percent > 0)
        }
    }

    function test_aComponentBeyondItsMostFillsItsBarAndKeepsItsFigure() {
        set("cpuPower", 60)
        const row = all(ComponentRow)[0]
        compare(one(ProportionBar, row).fraction, 1)
        compare(texts(row)[1], "60W")
    }

    function test_processesStandInColumns() {
        for (const row of all(ProcessRow)) {
            const [position, name, cpu, watts] = Array.from(row.children)
            compare(position.width, 18)
            verify(name.width >= 128)
            compare(watts.width, 30)
            verify(watts.horizontalAlignment === Text.AlignRight && cpu.horizontalAlignment === Text.AlignRight)
        }
    }

    function test_everyRowOfAListIsShownAndNoOther() {
        for (const count of [5, 1, 3]) {
            set("topProcesses", Array.from({ length: count }, (_, i) => ["process" + i, 10, 1]))
            compare(all(ProcessRow).map(row => texts(row)[1]), Array.from({ length: count }, (_, i) => "process" + i))
        }
        compare(all(DetailRow).length, 8)
        compare(all(Divider, one(BatteryDetailsCard)).length, 7)
        set("voltage", 0)
        set("batteryTemp", 0)
        compare(all(DetailRow).length, 6)
        compare(all(Divider, one(BatteryDetailsCard)).length, 5)
    }

    function test_statisticsShareTheWidth() {
        const badges = all(StatBadge)
        compare(badges.map(badge => texts(badge)), [["18.3W", "Avg"], ["12.0W", "Min"], ["22.0W", "Max"]])
        for (const badge of badges) {
            fuzzyCompare(badge.width, 344 / 3, 1)
            for (const text of all(Text, badge)) {
                fuzzyCompare(text.mapToItem(badge, 0, 0).x + text.width / 2, badge.width / 2, 1)
            }
        }
    }

    function test_extremesOfTheTrendStandAtItsEndsAndItsMeanBetween() {
        const card = one(TrendCard)
        fuzzyCompare(textItem("19W min", card).mapToItem(card, 0, 0).x, 12, 1)
        const max = textItem("30W max", card)
        fuzzyCompare(max.mapToItem(card, 0, 0).x + max.width, card.width - 12, 4)
    }

    function test_powerBadgeShowsItsThreeStates() {
        const badge = one(PowerBadge)
        compare(texts(badge), ["18.2", "W", "Charging Battery", "21W system", "39W total input"])
        set("fullyCharged", true)
        compare(texts(badge), ["21.0", "W", "Fully Charged — System Power Draw"])
        set("isPluggedIn", false)
        compare(texts(badge), ["-", "21.0", "W", "Battery Drain"])
    }

    function test_powerBadgeStandsOnOneLine() {
        set("isPluggedIn", false)
        const baselines = ["-", "21.0", "W"].map(text => {
            const item = textItem(text, one(PowerBadge))
            return item.mapToItem(view, 0, item.baselineOffset).y
        })
        fuzzyCompare(baselines[1], baselines[0], 1)
        fuzzyCompare(baselines[2], baselines[0], 1)
    }

    function test_dotsAreOfTheirSizeAndColour() {
        showSettings()
        for (const [installed, shade] of [[true, "#34b25f"], [false, "#e5544c"]]) {
            set("daemonInstalled", installed)
            const dot = one(StatusRow).children[0]
            compare([dot.width, dot.height, dot.radius], [8, 8, 4])
            compare(dot.color, shade)
        }
    }

    function test_onlyTheChosenButtonIsFilled() {
        showSettings()
        set("menuBarDisplay", "Temperature")
        for (const button of all(ChoiceButton, one(GeneralSection))) {
            compare(Qt.colorEqual(button.background.color, "#2f6feb"), button.choice.text === "Temp")
            compare(Qt.colorEqual(button.contentItem.color, "white"), button.choice.text === "Temp")
            compare([button.leftPadding, button.topPadding], [6, 5])
        }
        for (const button of all(ChoiceButton, one(CalibrationSection))) {
            compare([button.leftPadding, button.topPadding], [8, 4])
        }
    }

    function test_rangeButtonsLeaveTheirRoomAroundTheText() {
        for (const button of all(ChoiceButton, one(HistoryCard))) {
            compare([button.leftPadding, button.topPadding], [12, 5])
        }
    }

    function test_limitCardShowsWhatThereIsToSet_data() {
        return [
            { tag: "without helper", installed: false, enabled: false, sliders: 0, offers: 1 },
            { tag: "without helper, limit on", installed: false, enabled: true, sliders: 0, offers: 1 },
            { tag: "limit off", installed: true, enabled: false, sliders: 0, offers: 0 },
            { tag: "limit on", installed: true, enabled: true, sliders: 1, offers: 0 }
        ]
    }

    function test_limitCardShowsWhatThereIsToSet(row) {
        set("daemonInstalled", row.installed)
        set("chargeLimitEnabled", row.enabled)
        const card = one(ChargeLimitCard)
        compare(all(StepSlider, card).length, row.sliders)
        compare(all(StatusRow, card).length, row.sliders)
        compare(all(ActionButton, card).length, row.offers)
        verify(has("Limit max charge to preserve battery health"))
    }

    function test_datesFollowTheLastCalibration() {
        showSettings()
        verify(has("Last: 3 days ago") && has("Next: in 3 weeks"))
        set("lastCalibrationDate", null)
        verify(has("First calibration will start when charge limit is active"))
        verify(!has("Last: 3 days ago"))
    }

    function test_figuresDoNotDance() {
        const widths = ["111.1", "888.8", "000.0"].map(text => {
            const figure = createTemporaryQmlObject("import QtQuick; import Quelby; Text { font.family: Theme.family }",
                                                    view, "figure")
            figure.text = text
            return figure.implicitWidth
        })
        compare(widths[0], widths[1])
        compare(widths[0], widths[2])
    }
}
