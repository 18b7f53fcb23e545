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

    property bool following: false // the content, which need not be told of what it says
    property real former: 0 // value

    signal stepped(real value)

    function follow() {
        following = true
        from = content.from
        to = content.to
        stepSize = content.step
        value = Math.max(from, Math.min(content.value, to)) // others may have gone beyond the ends
        following = false
    }

    // One step away from a level beside the scale is the next level on it; anything else is the nearest.
    function onTheScale(): real {
        const steps = (value - from) / stepSize
        const oneStep = Math.abs(value - former) === stepSize
        return from + stepSize * (!oneStep ? Math.round(steps) : value < former ? Math.ceil(steps) : Math.floor(steps))
    }

    // Where the middle of the handle is at a position of 0 to 1, from the left.
    function handleCentre(position: real): real {
        const way = availableWidth - handle.width
        return leftPadding + handle.width / 2 + (mirrored ? 1 - position : position) * way
    }

    snapMode: T.Slider.SnapAlways
    live: true
    implicitHeight: 9 * Theme.unit
    Accessible.name: name
    Accessible.ignored: !enabled
    Accessible.onIncreaseAction: increase()
    Accessible.onDecreaseAction: decrease()
    Component.onCompleted: follow()
    onContentChanged: follow()

    // Pointer and keyboard go by steps; assistive technology sets what it likes.
    onValueChanged: {
        const level = onTheScale()
        former = value
        if (following) {
            return
        }
        if (value === level) {
            stepped(value)
        } else {
            value = level
        }
    }

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
        x: slider.handleCentre(slider.position) - width / 2
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
