pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property chargeLimitContent content

    signal toggled(bool enabled)
    signal limitChosen(real percent)
    signal installWanted

    name: content.title.text

    CardTitle {
        symbol: card.content.symbol
        title: card.content.title

        ToggleSwitch {
            name: card.content.title.text
            on: card.content.enabled
            onTurned: on => card.toggled(on)
        }
    }

    InkText {
        content: card.content.subtitle
        wrapMode: Text.WordWrap
        Layout.fillWidth: true
    }

    InkText {
        content: card.content.offer.explanation
        visible: card.content.offer.present
        wrapMode: Text.WordWrap
        Layout.fillWidth: true
    }

    ActionButton {
        visible: card.content.offer.present
        symbol: card.content.offer.installButton.symbol
        label: card.content.offer.installButton.text.text
        ink: Theme.ink(card.content.offer.installButton.text.color)
        surface: pressed || hovered ? Theme.accentPressed : Theme.fills[Ink.Accent]
        Layout.fillWidth: true
        Layout.maximumWidth: Math.ceil(implicitWidth)
        onClicked: card.installWanted()
    }

    ColumnLayout {
        spacing: card.spacing
        visible: card.content.stopLevel.present

        RowLayout {
            spacing: 2 * Theme.unit

            Repeater {
                model: card.content.stopLevel.stopAt.length

                InkText {
                    required property int index

                    content: card.content.stopLevel.stopAt.at(index)
                    font.weight: index > 0 ? Font.Bold : Font.Normal
                }
            }
        }

        StepSlider {
            id: stopSlider

            content: card.content.stopLevel.slider
            name: card.content.stopLevel.stopAt.at(0).text
            Layout.fillWidth: true
            Layout.leftMargin: Theme.sliderInset
            Layout.rightMargin: Theme.sliderInset
            onStepped: value => card.limitChosen(value)
        }

        SliderScale {
            content: card.content.stopLevel
            slider: stopSlider
            Layout.fillWidth: true
            Layout.leftMargin: Theme.sliderInset
            Layout.rightMargin: Theme.sliderInset
        }

        StatusRow { content: card.content.stopLevel.status }
    }
}
