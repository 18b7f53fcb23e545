import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property helperContent content

    signal installWanted
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

    RowLayout {
        spacing: 4 * Theme.unit

        StatusRow {
            content: card.content.status
            Layout.fillWidth: true
        }

        ActionButton {
            label: card.content.button.text
            onClicked: {
                if (card.content.installed) {
                    card.uninstallWanted()
                } else {
                    card.installWanted()
                }
            }
        }
    }

    InkText {
        content: card.content.update.explanation
        visible: card.content.update.present
        wrapMode: Text.WordWrap
        Layout.fillWidth: true
    }

    ActionButton {
        visible: card.content.update.present
        symbol: card.content.update.installButton.symbol
        label: card.content.update.installButton.text.text
        ink: Theme.ink(card.content.update.installButton.text.color)
        surface: pressed || hovered ? Theme.accentPressed : Theme.fills[Ink.Accent]
        Layout.fillWidth: true
        Layout.maximumWidth: Math.ceil(implicitWidth)
        onClicked: card.installWanted()
    }
}
