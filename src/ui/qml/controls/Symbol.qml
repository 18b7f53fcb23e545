// One symbol of a card in its colour. The words beside it say what it means.
import QtQuick
import Quelby
import Quelby.Bridge

SymbolItem {
    required property inkedSymbol content
    property real size: Theme.captionSize // of the letters that it goes with: it is a little larger itself

    name: content.name
    color: Theme.symbolInk(content.color)
    implicitWidth: size + Theme.unit
    implicitHeight: implicitWidth
}
