// A part of a whole: a fill over a track.
import QtQuick
import Quelby
import Quelby.Bridge

Item {
    id: bar

    required property inkedBar content
    required property string name // for those who cannot see it
    property bool graded: false // from a pale beginning
    property bool muted: false // in a paler shade of its colour

    readonly property color full: Theme.translucent(Theme.fill(content.color), muted ? Theme.mutedOpacity : 1)
    readonly property color pale: graded ? Theme.translucent(full, Theme.paleOpacity) : full
    readonly property real fraction: gliding.value // on its way to the content's

    implicitHeight: Theme.barHeight
    Accessible.role: Accessible.ProgressBar
    Accessible.name: name
    Accessible.ignored: !enabled
    Accessible.description: content.percent
    LayoutMirroring.childrenInherit: true

    GlidingNumber {
        id: gliding

        clock: Theme.glideClock
        target: bar.content.fraction
    }

    BarItem {
        anchors.fill: parent
        fraction: bar.fraction
        track: Theme.track
        first: bar.pale
        last: bar.full
        fromRight: LayoutMirroring.enabled
    }
}
