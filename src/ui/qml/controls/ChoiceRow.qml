// A row of buttons, of which one is selected.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

RowLayout {
    id: row

    required property choiceList choices
    property real size: Theme.smallSize
    property real horizontalPadding: 3 * Theme.unit
    property real verticalPadding: 2.5 * Theme.unit

    signal chosen(int index)

    spacing: 2 * Theme.unit

    Repeater {
        model: row.choices.length

        ChoiceButton {
            required property int index

            choice: row.choices.at(index)
            size: row.size
            leftPadding: row.horizontalPadding
            rightPadding: row.horizontalPadding
            topPadding: row.verticalPadding
            bottomPadding: row.verticalPadding
            Layout.fillWidth: true
            Layout.maximumWidth: Math.ceil(implicitWidth)
            onClicked: row.chosen(index)
        }
    }
}
