// A figure that glides to its new value.
import QtQuick
import Quelby
import Quelby.Bridge

InkText {
    id: figure

    text: gliding.text
    elide: Text.ElideNone
    Accessible.name: content.text

    GlidingText {
        id: gliding

        target: figure.content.text
        onTargetChanged: Theme.animated ? animation.restart() : animation.complete()
    }

    NumberAnimation {
        id: animation

        target: gliding
        property: "progress"
        from: 0
        to: 1
        duration: Theme.glide
        easing.type: Easing.OutCubic
    }
}
