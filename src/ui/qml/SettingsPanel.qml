// What takes the place of the cards while the settings are shown.
import QtQuick
import QtQuick.Layouts
import Quelby.Bridge

ColumnLayout {
    id: panel

    required property DashboardModel monitor

    signal uninstallWanted

    spacing: Theme.viewSpacing

    GeneralSection {
        content: panel.monitor.settings.general
        Layout.fillWidth: true
        onLaunchAtLoginTurned: on => panel.monitor.setLaunchAtLogin(on)
        onDisplayChosen: index => panel.monitor.selectMenuBarDisplay(index)
    }

    CalibrationSection {
        content: panel.monitor.settings.calibration
        Layout.fillWidth: true
        onAutoCalibrateTurned: on => panel.monitor.setAutoCalibrate(on)
        onIntervalChosen: index => panel.monitor.selectCalibrationInterval(index)
    }

    HelperSection {
        content: panel.monitor.settings.helper
        Layout.fillWidth: true
        onInstallWanted: panel.monitor.installDaemon()
        onUninstallWanted: panel.monitor.uninstallDaemon()
    }

    UninstallSection {
        content: panel.monitor.settings.uninstall
        Layout.fillWidth: true
        onUninstallWanted: panel.uninstallWanted()
    }

    InkText {
        content: panel.monitor.settings.version
        Layout.alignment: Qt.AlignHCenter
    }
}
