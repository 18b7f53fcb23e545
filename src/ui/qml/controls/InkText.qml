// One text of a card in its colour.
import QtQuick
import Quelby
import Quelby.Bridge

Text {
    required property inkedText content
    property bool silent: text === "" // nothing to say to those who cannot see it

    text: content.text
    color: Theme.ink(content.color)
    font.family: Theme.family
    font.pixelSize: Theme.captionSize
    textFormat: Text.PlainText
    elide: Text.ElideRight
    horizontalAlignment: Text.AlignLeft // said, so that it is mirrored
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: silent || !enabled
}
