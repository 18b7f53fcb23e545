import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property uninstallContent content

    signal uninstallWanted

    name: content.title.text

    CardTitle {
        symbol: card.content.symbol
        title: card.content.title
    }

    InkText {
        content: card.content.explanation
        wrapMode: Text.WordWrap
        Layout.fillWidth: true
    }

    ActionButton {
        symbol: card.content.button.symbol
        label: card.content.button.text.text
        ink: Theme.inks[Ink.Red]
        Layout.fillWidth: true
        Layout.maximumWidth: Math.ceil(implicitWidth)
        onClicked: card.uninstallWanted()
    }
}
