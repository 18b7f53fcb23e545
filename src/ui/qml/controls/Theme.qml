// Every size, colour and duration of the dashboard.
pragma Singleton

import QtQuick
import Quelby.Bridge

QtObject {
    id: theme

    // What the desktop asks for; set by whoever shows the dashboard.
    property bool dark: false
    property bool animated: true
    property bool contrast: false
    property color desktopAccent: "transparent" // where it has none
    property real textScale: 1
    property bool blurred: false // what is behind the window

    // All sizes are multiples of this, in points.
    readonly property real unit: 2 * textScale

    readonly property real viewWidth: Math.round(Metrics.viewWidth * textScale)
    readonly property real viewHeight: Math.round(Metrics.viewHeight * textScale)
    readonly property real viewPadding: 8 * unit
    readonly property real viewSpacing: 7 * unit
    readonly property real viewRadius: 5 * unit // where the view's own edge is seen
    readonly property real cardPadding: 6 * unit
    readonly property real cardRadius: 6 * unit
    readonly property real controlRadius: 3 * unit
    readonly property real barHeight: 4 * unit
    readonly property real levelBarHeight: 5 * unit
    readonly property real sliderInset: 2 * unit // so that the texts under its ends keep to the card
    readonly property real focusWidth: unit
    readonly property real hairline: unit / 2

    readonly property string family: Metrics.fontFamily
    readonly property string starFamily: "DejaVu Sans"

    readonly property real hugeSize: 36 * textScale
    readonly property real scoreSize: 28 * textScale
    readonly property real levelSize: 26 * textScale
    readonly property real title2Size: 17 * textScale
    readonly property real title3Size: 15 * textScale
    readonly property real headlineSize: 13 * textScale
    readonly property real bodySize: 13 * textScale
    readonly property real captionSize: 11 * textScale
    readonly property real caption2Size: 10 * textScale
    readonly property real smallSize: 9 * textScale

    readonly property int fade: animated ? 120 : 0 // ms

    // Of what is behind it shows no more than every text can bear, be that black or white.
    readonly property color window: dark ? (blurred ? "#d91b1b1f" : "#1b1b1f") : blurred ? "#f0e9e9ee" : "#e9e9ee"
    readonly property color edge: dark ? "#4d4d54" : "#c3c3ca"
    readonly property color card: contrast ? (dark ? "#000000" : "#ffffff") : dark ? "#12ffffff" : "#b8ffffff"
    readonly property color track: dark ? "#598e8e93" : "#408e8e93"
    readonly property color divider: contrast ? inks[Ink.Secondary] : dark ? "#1fffffff" : "#1a000000"
    readonly property color control: dark ? "#17ffffff" : "#17000000"
    readonly property color controlPressed: dark ? "#3dffffff" : "#2b000000"
    readonly property color scrim: dark ? "#99000000" : "#59000000"
    readonly property color panel: dark ? "#2e2e33" : "#fafafc"
    readonly property color focus: dark ? "#7fb0ff" : "#2f6feb"
    readonly property color onFill: inks[Ink.White] // text on a coloured surface
    readonly property color accent: desktopAccent.a > 0 ? desktopAccent : "#2f6feb"
    readonly property color accentPressed: Qt.darker(fills[Ink.Accent], 1.15)
    readonly property color destructive: "#c9302c"
    readonly property color knob: "#ffffff"
    readonly property color knobPressed: "#e4e4e8"
    readonly property color knobEdge: "#33000000"

    readonly property real pressedOpacity: 0.6
    readonly property real restingOpacity: 0.7 // of what comes out fully under the pointer
    readonly property real paleOpacity: 0.55 // where a graded bar begins
    readonly property real mutedOpacity: 0.75 // of the bars that only make up another

    // In the order of Ink.Name. Text has to be read, so it is darker than the surfaces of the same name in the
    // light, and lighter in the dark.
    readonly property color quiet: contrast ? (dark ? "#e2e2e8" : "#33333a") : dark ? "#a9a9b2" : "#5f5f68"
    readonly property list<color> inks: dark
        ? ["#f4f4f6", quiet, "#4fcf7f", "#eec64b", "#ff9f52", "#ff867f", "#71b3ff", "#cc9bff", "#57cfe2",
           "#8ab8ff", "#ffffff"]
        : ["#1c1c1f", quiet, "#17793a", "#7d5a00", "#a84a06", "#bf2a24", "#0b5cc2", "#7d3bb5", "#0a6c80",
           "#1f5fd6", "#ffffff"]
    readonly property list<color> fills: dark
        ? ["#f4f4f6", "#8d8d96", "#43c473", "#e6bd3f", "#f79646", "#f26d66", "#5ba4f8", "#bd87f2", "#48c1d6",
           accent, "#ffffff"]
        : ["#1c1c1f", "#8a8a93", "#34b25f", "#e3b01a", "#ee8a2d", "#e5544c", "#3f8cf0", "#a868dd", "#21a9c0",
           accent, "#ffffff"]

    readonly property GlideClock beat: GlideClock {}
    readonly property GlideClock glideClock: animated ? beat : null

    readonly property ChartStyle chart: ChartStyle {
        fontFamily: theme.family
        curveColors: [theme.fills[Ink.Green], theme.fills[Ink.Yellow], theme.fills[Ink.Orange], theme.fills[Ink.Red]]
        curveWidth: theme.unit
        dotDiameter: 3 * theme.unit
        axisColor: theme.inks[Ink.Secondary]
        axisSize: 8 * theme.textScale
        lineColor: "#66ffffff"
        lineWidth: theme.hairline
        circleColor: "#ffffff"
        circleDiameter: 3.5 * theme.unit
        haloColor: theme.dark ? "#00000000" : "#40000000"
        haloWidth: theme.unit
        labelColor: "#ffffff"
        labelBackground: "#cc000000"
        labelSize: theme.caption2Size
        labelHorizontalPadding: 3 * theme.unit
        labelVerticalPadding: 1.5 * theme.unit
        labelRadius: 2 * theme.unit
    }

    // From the top to the bottom of the area below a curve.
    readonly property list<color> trendArea: [
        translucent(fills[Ink.Green], 0.3), translucent(fills[Ink.Yellow], 0.1), translucent(fills[Ink.Yellow], 0)
    ]
    readonly property list<color> historyArea: [
        translucent(fills[Ink.Blue], 0.3), translucent(fills[Ink.Blue], 0.05), translucent(fills[Ink.Blue], 0)
    ]

    // Of text.
    function ink(value: ink): color {
        return translucent(inks[value.name], value.opacity)
    }

    // Of symbols: they are surfaces, but for those that only accompany a text.
    function symbolInk(value: ink): color {
        const quiet = value.name === Ink.Primary || value.name === Ink.Secondary
        return quiet ? ink(value) : fill(value)
    }

    // Of bars, dots and curves.
    function fill(value: ink): color {
        return translucent(fills[value.name], value.opacity)
    }

    function translucent(shade: color, opacity: real): color {
        return Qt.rgba(shade.r, shade.g, shade.b, shade.a * opacity)
    }
}
