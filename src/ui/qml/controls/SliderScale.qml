// The texts below a slider, each centred under the place of the handle for what it names.
pragma ComponentBehavior: Bound

import QtQuick
import Quelby
import Quelby.Bridge

Item {
    id: texts

    required property stopLevelContent content
    required property StepSlider slider // of the same width

    implicitHeight: childrenRect.height

    Repeater {
        model: texts.content.scale.length

        InkText {
            required property int index

            content: texts.content.scale.at(index)
            font.pixelSize: Theme.smallSize
            x: texts.slider.handleCentre(texts.content.scalePosition(index)) - width / 2
        }
    }
}
