// What takes the place of the cards while the settings are shown.
import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

ColumnLayout {
    id: panel

    required property DashboardModel dashboard

    signal uninstallWanted

    spacing: Theme.viewSpacing

    GeneralSection {
        content: panel.dashboard.settings.general
        Layout.fillWidth: true
        onLaunchAtLoginTurned: on => panel.dashboard.setLaunchAtLogin(on)
        onDisplayChosen: index => panel.dashboard.selectMenuBarDisplay(index)
    }

    CalibrationSection {
        content: panel.dashboard.settings.calibration
        Layout.fillWidth: true
        onAutoCalibrateTurned: on => panel.dashboard.setAutoCalibrate(on)
        onIntervalChosen: index => panel.dashboard.selectCalibrationInterval(index)
    }

    HelperSection {
        content: panel.dashboard.settings.helper
        Layout.fillWidth: true
        onInstallWanted: panel.dashboard.installDaemon()
        onUninstallWanted: panel.dashboard.uninstallDaemon()
    }

    UninstallSection {
        content: panel.dashboard.settings.uninstall
        Layout.fillWidth: true
        onUninstallWanted: panel.uninstallWanted()
    }

    InkText {
        content: panel.dashboard.settings.version
        Layout.alignment: Qt.AlignHCenter
    }
}
