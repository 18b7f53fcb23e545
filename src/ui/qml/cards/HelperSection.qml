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
}
