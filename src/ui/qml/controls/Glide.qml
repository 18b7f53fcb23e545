// Takes what glides to its new target.
import QtQuick
import Quelby

NumberAnimation {
    property: "progress"
    from: 0
    to: 1
    duration: Theme.glide
}
