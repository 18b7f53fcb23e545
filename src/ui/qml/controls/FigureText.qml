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

        clock: Theme.glideClock
        target: figure.content.text
    }
}
