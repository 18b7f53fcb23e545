// A slider that tells each step.
import QtQuick
import QtQuick.Templates as T
import Quelby
import Quelby.Bridge

T.Slider {
    id: slider

    required property sliderContent content
    required property string name // for those who cannot see it

    // As assistive technology asks for them.
    readonly property real minimumValue: from
    readonly property real maximumValue: to

    signal stepped(real value)

    function tell() {
        if (value !== content.value) {
            stepped(value)
        }
    }

    from: content.from
    to: content.to
    stepSize: content.step
    value: content.value
    snapMode: T.Slider.SnapAlways
    live: true
    implicitHeight: 9 * Theme.unit
    Accessible.name: name
    Accessible.onIncreaseAction: {
        increase()
        tell()
    }
    Accessible.onDecreaseAction: {
        decrease()
        tell()
    }
    onMoved: tell()

    background: Item {
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: 2 * Theme.unit
            radius: height / 2
            color: Theme.track
        }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            x: slider.mirrored ? parent.width - width : 0
            width: slider.position * parent.width
            height: 2 * Theme.unit
            radius: height / 2
            color: Theme.fills[Ink.Green]
        }
    }

    handle: Rectangle {
        x: slider.visualPosition * (slider.availableWidth - width)
        y: (slider.height - height) / 2
        width: 8 * Theme.unit
        height: width
        radius: width / 2
        color: slider.pressed ? Theme.knobPressed : Theme.knob
        border.color: Theme.knobEdge
        border.width: Theme.hairline

        FocusRing {
            visible: slider.visualFocus
            radius: width / 2
        }
    }
}
