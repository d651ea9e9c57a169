import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// How much the report holds, and from when.
RowLayout {
    id: counters

    required property DeskrigViewModel viewModel

    spacing: 10

    Counter {
        text: counters.viewModel.shell.appsCounter
        tint: "#2563eb"
    }
    Counter {
        text: counters.viewModel.shell.taveloCounter
        tint: Design.success
    }
    DeskText {
        text: counters.viewModel.strings.screenText(Screens.ScreenText.taveloCounterNote)
        color: Design.mutedText
        font.pixelSize: 11
        Layout.fillWidth: true
    }
    DeskText {
        objectName: "scanned-at"
        text: counters.viewModel.isReportRefreshing ? counters.viewModel.auditProgressDetailText : counters.viewModel.shell.scannedAt
        color: Design.mutedText
        font.pixelSize: 11
    }
    PlainButton {
        objectName: "scan-again-button"
        text: counters.viewModel.strings.screenText(Screens.ScreenText.scanAgain)
        symbol: "arrow.clockwise"
        enabled: !counters.viewModel.isReportRefreshing
        implicitHeight: 30
        onClicked: counters.viewModel.scanMac()
    }
}
