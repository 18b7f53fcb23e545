import QtQuick
import Quelby
import Quelby.Bridge

PlainButton {
    id: button

    required property inkedLabel content

    name: content.text.text
    padding: 2 * Theme.unit // which is the extra space above it as well

    contentItem: SymbolLabel {
        content: button.content
        silent: true
    }
}
