import QtQuick
import Quelby
import Quelby.Bridge

DashboardTestCase {
    name: "ContentView"

    readonly property var cardTypes: ({
        chargeLimit: ChargeLimitCard,
        powerBadge: PowerBadge,
        battery: BatteryCard,
        components: ComponentCard,
        processes: ProcessCard,
        trend: TrendCard,
        history: HistoryCard,
        efficiency: EfficiencyCard,
        details: BatteryDetailsCard,
        use: EnergyUseCard,
        past: PastCard,
        ageing: AgeingCard,
        general: GeneralSection,
        calibration: CalibrationSection,
        helper: HelperSection,
        uninstall: UninstallSection
    })

    function nameOf(card) {
        return Object.keys(cardTypes).find(name => card instanceof cardTypes[name])
    }

    function cardsFromTheTop() {
        return all(CardChrome).sort((a, b) => placeOf(a).y - placeOf(b).y).map(nameOf)
    }

    function test_isAsLargeAsItIsMeantToBe() {
        compare(view.width, 400)
        compare(view.height, 660)
    }

    function test_showsItsCardsInTheirOrder_data() {
        return [
            { tag: "laptop", battery: true, samples: [1, 2, 3],
              cards: ["chargeLimit", "powerBadge", "battery", "components", "processes", "trend", "history",
                      "efficiency", "details"] },
            { tag: "laptop without a trend", battery: true, samples: [1, 2],
              cards: ["chargeLimit", "powerBadge", "battery", "components", "processes", "history", "efficiency",
                      "details"] },
            { tag: "desktop", battery: false, samples: [1, 2, 3],
              cards: ["powerBadge", "components", "processes", "trend", "history", "efficiency"] },
            { tag: "desktop without a trend", battery: false, samples: [],
              cards: ["powerBadge", "components", "processes", "history", "efficiency"] }
        ]
    }

    function test_showsItsCardsInTheirOrder(row) {
        set("hasBattery", row.battery)
        set("powerHistory", row.samples)
        compare(cardsFromTheTop(), row.cards)
    }

    function test_showsACardAsSoonAsThereIsSomethingInIt() {
        set("hasBattery", false)
        compare(all(BatteryCard).length, 0)
        set("hasBattery", true)
        compare(texts(one(BatteryCard)).slice(0, 2), [said.battery.title.text, "72%"])
    }

    function test_beginsWithTheHeaderAndEndsWithTheQuitButton() {
        verify(placeOf(one(DashboardHeader)).y < placeOf(all(CardChrome)[0]).y)
        verify(placeOf(one(QuitButton)).y > placeOf(one(BatteryDetailsCard)).y)
    }

    function test_leavesItsDistancesBetweenTheCards() {
        const cards = all(CardChrome)
        compare(placeOf(cards[0]).x, 16)
        compare(cards[0].width, 400 - 2 * 16)
        for (let i = 1; i < cards.length; ++i) {
            compare(placeOf(cards[i]).y, placeOf(cards[i - 1]).y + cards[i - 1].height + 14)
        }
    }

    function test_showsTheSettingsInPlaceOfTheCards() {
        showSettings()
        compare(cardsFromTheTop(), ["general", "calibration", "helper", "uninstall"])
        verify(placeOf(one(QuitButton)).y > placeOf(one(UninstallSection)).y)
        verify(has(said.settings.version.text))
    }

    function test_showsTheClockOnlyOverTheCards() {
        compare(texts(one(DashboardHeader)), [Words.program, "22:13:20"])
        showSettings()
        compare(texts(one(DashboardHeader)), [Words.settings])
        compare(all(Symbol, one(DashboardHeader)).map(symbol => symbol.content.name), ["chevron.left", "xmark.circle"])
    }

    function test_isHeadedInTheSizeOfAHeadline() {
        const header = one(DashboardHeader)
        const sizes = () => all(Symbol, header).map(symbol => symbol.size)
        compare(all(Text, header)[0].font.pixelSize, Theme.headlineSize)
        compare(sizes(), [Theme.title2Size, Theme.title3Size])
        showSettings()
        compare(all(Text, header)[0].font.pixelSize, Theme.headlineSize)
        compare(sizes(), [Theme.title3Size, Theme.title3Size])
    }

    function test_leavesALittleMoreSpaceAboveTheQuitButton() {
        const last = one(BatteryDetailsCard)
        const label = one(SymbolLabel, one(QuitButton))
        compare(placeOf(label).y, placeOf(last).y + last.height + 14 + 4)
    }

    function test_goesToTheSettingsAndBackAgainInBothWays_data() {
        return [{ tag: "chevron", back: Words.back }, { tag: "cross", back: Words.closeSettings }]
    }

    function test_goesToTheSettingsAndBackAgainInBothWays(row) {
        for (const act of [click, button => press(button, Qt.Key_Space), button => press(button, Qt.Key_Return)]) {
            act(named(PlainButton, Words.settings))
            verify(view.showSettings)
            act(named(PlainButton, row.back))
            verify(!view.showSettings)
            compare(all(Symbol, one(DashboardHeader)).map(symbol => symbol.content.name), ["bolt.fill", "gearshape"])
        }
    }

    function test_opensTheEnergyByItsFigureAndLeadsBackInBothWays_data() {
        return [{ tag: "chevron", back: Words.back }, { tag: "cross", back: Words.closeEnergy }]
    }

    function test_opensTheEnergyByItsFigureAndLeadsBackInBothWays(row) {
        const today = Words.energyButtonName(said.history.today.text)
        for (const act of [click, button => press(button, Qt.Key_Space), button => press(button, Qt.Key_Return)]) {
            act(named(PlainButton, today))
            verify(view.showEnergy)
            compare(cardsFromTheTop(), ["use", "past", "past", "ageing"])
            compare(texts(one(DashboardHeader)), [said.energy.header.title.text])
            act(named(PlainButton, row.back))
            verify(!view.showEnergy)
            verify(!view.showSettings)
            compare(cardsFromTheTop()[0], "chargeLimit")
        }
    }

    function test_selectsTheRangeOfTheEnergy() {
        view.showEnergy = true
        settle()
        click(all(ChoiceButton, one(EnergyUseCard))[3])
        verify(said.energy.use.ranges.at(3).selected)
        verify(!said.energy.use.ranges.at(0).selected)
    }

    function test_showsOnlyTheUseOfEnergyOfAMachineWithoutABattery() {
        set("hasBattery", false)
        view.showEnergy = true
        settle()
        compare(cardsFromTheTop(), ["use"])
    }

    function test_beginsAtTheTopOfEitherSide() {
        view.scrollTo(300)
        showSettings()
        compare(view.scrollTop, 0)
        view.scrollTo(50)
        view.showSettings = false
        compare(view.scrollTop, 0)
    }

    function test_beginsWithTheCardsWhereAnEarlierViewEndedWithTheSettings() {
        showSettings()
        view.destroy()
        makeView()
        compare(all(GeneralSection).length, 0)
        compare(texts(one(DashboardHeader)), [Words.program, "22:13:20"])
        set("batteryPercent", 33)
        verify(has("33%"))
    }

    function test_speaksOfNothingYet() {
        set("topProcesses", [])
        compare(texts(one(ProcessCard)), [said.processes.title.text, said.processes.placeholder.text])
        set("historyData", [[1, 2]])
        const waiting = said.history.placeholder.text.text
        verify(has(waiting))
        compare(all(ChartFrame, one(HistoryCard)).length, 0)
        set("historyData", [[1, 2], [2, 3]])
        verify(!has(waiting))
        compare(all(ChartFrame, one(HistoryCard)).length, 1)
    }

    function test_isDarkOrLightAsTheDesktopIs() {
        for (const dark of [true, false, true]) {
            view.dark = dark
            const picture = grabImage(view)
            const card = placeOf(one(PowerBadge))
            for (const shade of [picture.pixel(2, 2), picture.pixel(card.x + 200, card.y + 6)]) {
                compare(shade.hslLightness < 0.5, dark)
            }
        }
    }

    function test_scrollsToTheEndAndNoFarther() {
        view.scrollTo(100000)
        const end = view.scrollTop
        verify(end > 0)
        fuzzyCompare(placeOf(one(QuitButton)).y + one(QuitButton).height, 660 - 16, 1)
        view.scrollTo(-5)
        compare(view.scrollTop, 0)
        showSettings()
        view.scrollTo(100000)
        verify(view.scrollTop < end)
    }

    function test_staysWithinItsEndWhenCardsDisappear() {
        view.scrollTo(100000)
        set("hasBattery", false)
        fuzzyCompare(placeOf(one(QuitButton)).y + one(QuitButton).height, 660 - 16, 1)
    }

    function test_scrollsWithTheWheel() {
        mouseWheel(view, 200, 300, 0, -240)
        tryVerify(() => view.scrollTop > 0)
    }

    function test_showsWhereItIsScrolledTo() {
        const bar = one(ScrollIndicator)
        fuzzyCompare(bar.position, 0, 0.001)
        view.scrollTo(100000)
        fuzzyCompare(bar.position + bar.size, 1, 0.001)
    }
}
