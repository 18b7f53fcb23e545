// What every card has around it.
import QtQuick
import QtQuick.Layouts
import Quelby

Rectangle {
    id: chrome

    required property string name // for those who cannot see the card
    property real spacing: 4 * Theme.unit
    default property alias elements: column.data

    implicitWidth: column.implicitWidth + 2 * Theme.cardPadding
    implicitHeight: column.implicitHeight + 2 * Theme.cardPadding
    radius: Theme.cardRadius
    color: Theme.card
    Accessible.role: Accessible.Grouping
    Accessible.name: name
    Accessible.ignored: !enabled

    ColumnLayout {
        id: column

        spacing: chrome.spacing
        anchors.fill: parent
        anchors.margins: Theme.cardPadding
    }
}
