// The whole view: header, cards or settings, and the two questions.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Quelby
import Quelby.Bridge

FocusScope {
    id: view

    required property DashboardModel dashboard

    // What the desktop likes.
    required property bool dark
    required property bool animated
    property bool contrast: false
    property color accent: "transparent" // where the desktop has none
    property real textScale: 1

    // What is behind the view.
    property bool blurred: false
    property bool material: false

    // Where nothing else draws the edge of the window.
    property bool edged: false
    property bool rounded: false

    property bool showSettings: false
    property bool showEnergy: false // where it went, in place of the cards
    property bool showUninstallConfirm: false
    property bool uninstalling: false // as soon as the question is gone from the screen
    property alias scrollTop: scroll.contentY

    readonly property bool mirrored: Application.layoutDirection === Qt.RightToLeft
    readonly property real cornerRadius: rounded ? Theme.viewRadius : 0
    readonly property bool asking: tip.shown || uninstallQuestion.shown

    function scrollBy(distance: real) {
        scrollTo(scroll.contentY + distance)
    }

    function scrollTo(top: real) {
        scroll.contentY = Math.max(0, Math.min(top, scroll.contentHeight - scroll.height))
    }

    // Keeps what has the focus in sight.
    function reveal(item: Item) {
        const top = item.mapToItem(scroll.contentItem, 0, 0).y
        const bottom = top + item.height
        if (top < scroll.contentY) {
            scrollTo(top - Theme.viewPadding)
        } else if (bottom > scroll.contentY + scroll.height) {
            scrollTo(bottom + Theme.viewPadding - scroll.height)
        }
    }

    function contains(item: Item): bool {
        for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === scroll.contentItem) {
                return true
            }
        }
        return false
    }

    function uninstall() {
        if (uninstalling) {
            uninstalling = false
            dashboard.fullUninstall()
        }
    }

    width: Theme.viewWidth
    height: Theme.viewHeight
    focus: true
    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true

    Keys.enabled: !asking
    Keys.onUpPressed: scrollBy(-20 * Theme.unit)
    Keys.onDownPressed: scrollBy(20 * Theme.unit)
    Keys.onPressed: event => {
        const page = scroll.height - 20 * Theme.unit
        const top = {
            [Qt.Key_PageUp]: scroll.contentY - page,
            [Qt.Key_PageDown]: scroll.contentY + page,
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: scroll.contentHeight
        }[event.key]
        event.accepted = top !== undefined
        if (event.accepted) {
            scrollTo(top)
        }
    }

    onShowEnergyChanged: scrollTo(0)

    onShowSettingsChanged: {
        scrollTo(0)
        showEnergy = showEnergy && !showSettings
        showUninstallConfirm = showUninstallConfirm && showSettings
    }

    Binding { target: view.dashboard; property: "settingsShown"; value: view.showSettings }
    Binding { target: view.dashboard; property: "energyShown"; value: view.showEnergy }
    Binding { target: Theme; property: "dark"; value: view.dark }
    Binding { target: Theme; property: "animated"; value: view.animated }
    Binding { target: Theme; property: "contrast"; value: view.contrast }
    Binding { target: Theme; property: "desktopAccent"; value: view.accent }
    Binding { target: Theme; property: "textScale"; value: view.textScale }
    Binding { target: Theme; property: "blurred"; value: view.blurred }

    // A question that was left open does not come back by itself.
    Connections {
        target: view.dashboard

        function onWatchedChanged() {
            view.showUninstallConfirm = view.showUninstallConfirm && view.dashboard.watched
        }
    }

    // The administrator's password is waited for, and meanwhile nothing is drawn.
    Connections {
        target: view.uninstalling ? view.Window.window : null

        function onAfterRendering() {
            afterThisTurn.start()
        }

        function onVisibleChanged() {
            afterThisTurn.start()
        }
    }

    Timer {
        id: afterThisTurn

        interval: 0
        onTriggered: view.uninstall()
    }

    Connections {
        target: view.Window.window

        function onActiveFocusItemChanged() {
            const item = view.Window.window.activeFocusItem
            if (item && view.contains(item)) {
                view.reveal(item)
            }
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: view.cornerRadius
        color: Theme.window
        visible: !view.material
    }

    Flickable {
        id: scroll

        anchors.fill: parent
        contentWidth: width
        contentHeight: column.implicitHeight + 2 * Theme.viewPadding
        boundsBehavior: Flickable.StopAtBounds
        enabled: !view.asking // neither for hands nor for assistive technology
        T.ScrollBar.vertical: ScrollIndicator {
            topPadding: padding + view.cornerRadius / 2
            bottomPadding: padding + view.cornerRadius / 2
        }

        ColumnLayout {
            id: column

            x: Theme.viewPadding
            y: Theme.viewPadding
            width: scroll.width - 2 * Theme.viewPadding
            spacing: Theme.viewSpacing

            DashboardHeader {
                content: view.dashboard.header
                inSettings: view.showSettings
                inEnergy: view.showEnergy
                Layout.fillWidth: true
                onSettingsToggled: view.showSettings = !view.showSettings
                onEnergyClosed: view.showEnergy = false
            }

            DashboardCards {
                dashboard: view.dashboard
                seenTop: scroll.contentY - column.y - y
                seenHeight: scroll.height
                visible: !view.showSettings && !view.showEnergy
                Layout.fillWidth: true
                onEnergyWanted: view.showEnergy = true
            }

            // Made when it is wanted. A Loader of Qt 6.4 does not take bound components.
            Repeater {
                model: view.showSettings ? 1 : 0

                SettingsPanel {
                    dashboard: view.dashboard
                    Layout.fillWidth: true
                    onUninstallWanted: view.showUninstallConfirm = true
                }
            }

            Repeater {
                model: view.showEnergy ? 1 : 0

                EnergyPanel {
                    dashboard: view.dashboard
                    Layout.fillWidth: true
                }
            }

            QuitButton {
                content: view.dashboard.quitButton
                Layout.alignment: Qt.AlignHCenter
                onClicked: view.dashboard.quit()
            }
        }
    }

    ConfirmDialog {
        id: tip

        anchors.fill: parent
        content: view.dashboard.chargingTip
        cornerRadius: view.cornerRadius
        shown: view.dashboard.shouldShowChargingTip
        onAccepted: view.dashboard.openBatterySettings()
        onDismissed: view.dashboard.shouldShowChargingTip = false
    }

    ConfirmDialog {
        id: uninstallQuestion

        anchors.fill: parent
        content: view.dashboard.uninstallConfirmation
        cornerRadius: view.cornerRadius
        shown: view.showUninstallConfirm
        onAccepted: view.uninstalling = true
        onDismissed: view.showUninstallConfirm = false
    }

    Rectangle {
        anchors.fill: parent
        radius: view.cornerRadius
        color: "transparent"
        border.width: view.edged ? Theme.hairline : 0
        border.color: Theme.edge
        visible: view.edged
    }
}
