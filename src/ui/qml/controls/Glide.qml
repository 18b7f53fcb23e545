// Takes what glides to its new target.
import QtQuick
import Quelby

NumberAnimation {
    function follow() {
        if (Theme.animated) {
            restart()
        } else {
            stop()
        }
    }

    property: "progress"
    from: 0
    to: 1
    duration: Theme.glide
}
