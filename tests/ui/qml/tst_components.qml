import QtQuick
import Quelby
import Quelby.Bridge

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
        for (const row of rows) {
            compare(texts(row)[0], row.content.label.text)
            compare(row.total, row === rows[5])
        }
        compare(texts(rows[5])[0], said.components.total.label.text)
    }

    function test_aBarIsFilledAsFarAsItsPartGoes() {
        const bar = one(ProportionBar, one(BatteryCard)).children[0]
        for (const percent of [0, 1, 50, 100]) {
            set("batteryPercent", percent)
            fuzzyCompare(bar.fraction, percent / 100, 1e-9)
        }
    }

    function colorOfFill(bar) {
        return bar.children[0].last
    }

    function test_onlyTheTotalIsInItsFullColour() {
        const full = ["#e5544c", "#a868dd", "#3f8cf0", "#e3b01a", "#34b25f", "#ee8a2d"]
        for (const [index, row] of all(ComponentRow).entries()) {
            const shade = colorOfFill(one(ProportionBar, row))
            compare(Qt.colorEqual(shade, full[index]), index === 5)
            compare(shade.a < 1, index < 5)
            verify(Qt.colorEqual(Qt.rgba(shade.r, shade.g, shade.b, 1), full[index]))
        }
    }

    function test_tracksAreOfATranslucentGrey_data() {
        return [{ tag: "light", dark: false }, { tag: "dark", dark: true }]
    }

    function test_tracksAreOfATranslucentGrey(row) {
        view.dark = row.dark
        for (const bar of all(ProportionBar)) {
            const track = bar.children[0].track
            verify(track.a > 0 && track.a < 0.5)
            verify(track.hsvSaturation < 0.1 && track.hsvValue > 0.4 && track.hsvValue < 0.6)
        }
    }

    function test_theLevelGradesToItsFullColour() {
        const bar = one(ProportionBar, one(BatteryCard))
        verify(Qt.colorEqual(colorOfFill(bar), "#34b25f"))
        verify(bar.children[0].first.a < 1)
    }

    function test_aComponentBeyondItsMostFillsItsBarAndKeepsItsFigure() {
        set("cpuPower", 60)
        const row = all(ComponentRow)[0]
        compare(one(ProportionBar, row).fraction, 1)
        compare(texts(row)[1], "60W")
    }

    function test_processesStandInColumns() {
        for (const row of all(ProcessRow)) {
            const [position, name, cpu, watts] = all(Text, row)
            compare([position.width, name.width, watts.width], [18, 128, 30])
            compare(cpu.x, name.x + name.width + row.spacing)
            compare(watts.x + watts.width, row.width)
            compare(row.width, 344)
            verify(watts.horizontalAlignment === Text.AlignRight && cpu.horizontalAlignment === Text.AlignRight)
        }
    }

    function test_efficiencyIsAStackFromTheLeadingEdge() {
        const card = one(EfficiencyCard)
        const said = card.content
        const stack = [textItem(said.score.text, card), textItem(said.stars, card), textItem(said.rating.text, card),
                       one(SymbolLabel, card)]
        let bottom = 0
        for (const item of stack) {
            const place = item.mapToItem(card, 0, 0)
            compare(place.x, 12)
            verify(place.y >= bottom)
            bottom = place.y + item.height
        }
        compare(texts(card), [said.title.text, said.score.text, said.outOf.text, said.stars, said.rating.text,
                              said.advice.text.text])
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
        compare(badges.map(badge => texts(badge)[0]), ["18.3W", "12.0W", "22.0W"])
        for (const badge of badges) {
            compare(texts(badge)[1], badge.content.label.text)
            fuzzyCompare(badge.width, 344 / 3, 1)
            for (const text of all(Text, badge)) {
                fuzzyCompare(text.mapToItem(badge, 0, 0).x + text.width / 2, badge.width / 2, 1)
            }
        }
    }

    function test_extremesOfTheTrendStandAtItsEndsAndItsMeanBetween() {
        const card = one(TrendCard)
        fuzzyCompare(textItem(said.trend.min.text, card).mapToItem(card, 0, 0).x, 12, 1)
        const max = textItem(said.trend.max.text, card)
        fuzzyCompare(max.mapToItem(card, 0, 0).x + max.width, card.width - 12, 4)
    }

    function test_powerBadgeShowsItsThreeStates() {
        const badge = one(PowerBadge)
        const caption = () => said.powerBadge.caption.text
        compare(texts(badge).slice(0, 3), ["18.2", "W", caption()])
        compare(all(SymbolLabel, badge).length, 2)
        set("fullyCharged", true)
        compare(texts(badge), ["21.0", "W", caption()])
        set("isPluggedIn", false)
        compare(texts(badge), ["-", "21.0", "W", caption()])
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

    function symbolSize(name, root) {
        const found = all(Symbol, root).filter(symbol => symbol.content.name === name)
        compare(found.length, 1, name)
        return found[0].size
    }

    function test_symbolsGoWithTheLettersBesideThem() {
        compare(symbolSize("bolt.fill", one(PowerBadge)), Theme.title3Size)
        compare(symbolSize("desktopcomputer", one(PowerBadge)), Theme.caption2Size)
        compare(symbolSize("heart.fill", one(BatteryCard)), Theme.caption2Size)
        compare(symbolSize("clock", one(BatteryCard)), Theme.captionSize)
        compare(textItem(said.battery.health.text.text).font.pixelSize, Theme.captionSize)
        compare(symbolSize("flame.fill", one(ProcessCard)), Theme.headlineSize)
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
        const chosen = choice(GeneralSection, 4)
        for (const button of all(ChoiceButton, one(GeneralSection))) {
            compare(Qt.colorEqual(button.background.color, "#2f6feb"), button === chosen)
            compare(Qt.colorEqual(button.contentItem.color, "white"), button === chosen)
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
        verify(has(said.chargeLimit.subtitle.text))
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
        verify(!named(ToggleSwitch, said.chargeLimit.title.text).on)
        set("chargeLimitEnabled", true)
        verify(named(ToggleSwitch, said.chargeLimit.title.text).on)
    }

    function test_aButtonGivesWayUnderThePointer() {
        const button = named(PlainButton, Words.settings)
        mousePress(button)
        verify(button.opacity < 1)
        mouseMove(button, -40, 60)
        mouseRelease(view, 200, 200)
        compare(button.opacity, 1)
        verify(!view.showSettings)
    }

    function test_datesFollowTheLastCalibration() {
        showSettings()
        const dates = () => all(SymbolLabel, one(CalibrationSection))
        const [last, next] = dates().map(label => texts(label)[0])
        verify(last !== next)
        set("lastCalibrationDate", null)
        compare(dates().length, 1)
        verify(!has(last) && !has(next))
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
