// A chart in its place, which the keyboard can walk along as well as the pointer.
import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

Item {
    id: frame

    required property ChartItem chart
    required property string name // for those who cannot see it
    required property int count

    activeFocusOnTab: true
    Layout.fillWidth: true
    Accessible.role: Accessible.Chart
    Accessible.name: name
    Accessible.ignored: !enabled
    Accessible.description: chart.readOut
    Keys.onLeftPressed: chart.hover(chart.hoverIndex < 0 ? count - 1 : Math.max(chart.hoverIndex - 1, 0))
    Keys.onRightPressed: chart.hover(chart.hoverIndex < 0 ? 0 : Math.min(chart.hoverIndex + 1, count - 1))
    onActiveFocusChanged: {
        if (!activeFocus) {
            chart.hover(-1)
        }
    }

    Binding { target: frame.chart; property: "parent"; value: frame }
    Binding { target: frame.chart; property: "x"; value: -frame.chart.overhang }
    Binding { target: frame.chart; property: "y"; value: -frame.chart.overhang }
    Binding { target: frame.chart; property: "width"; value: frame.width + 2 * frame.chart.overhang }
    Binding { target: frame.chart; property: "height"; value: frame.height + 2 * frame.chart.overhang }
    Binding { target: frame.chart; property: "style"; value: Theme.chart }

    FocusRing {
        visible: frame.activeFocus
        around: 2 * Theme.unit
    }
}
