import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// What the inventory is, and how far it is or what it found.
ColumnLayout {
    id: header

    required property DeskrigViewModel viewModel

    spacing: 14

    RowLayout {
        spacing: 10

        ColumnLayout {
            spacing: 4

            DeskText {
                text: header.viewModel.strings.text(Labels.AppI18nKey.macInventory)
                font.pixelSize: 26
                font.weight: Font.Bold
                Layout.fillWidth: true
                Accessible.role: Accessible.Heading
            }
            WrappedText {
                text: header.viewModel.strings.auditSubtitle()
                color: Design.mutedText
                maximumLineCount: 2
                Layout.fillWidth: true
            }
        }
        RefreshButtonStyle {
            objectName: "audit-refresh-button"
            text: header.viewModel.strings.text(Labels.AppI18nKey.refresh)
            enabled: !header.viewModel.isReportRefreshing
            Layout.alignment: Qt.AlignTop
            onClicked: header.viewModel.scanMac()
        }
        PlainButton {
            objectName: "audit-report-button"
            text: header.viewModel.strings.screenText(Screens.ScreenText.report)
            symbol: "doc.text"
            Layout.alignment: Qt.AlignTop
            onClicked: header.viewModel.openReport()
        }
    }
    RowLayout {
        visible: header.viewModel.isReportRefreshing
        spacing: 12

        TaveloProgressBar {
            share: header.viewModel.auditProgress
            Accessible.name: header.viewModel.auditProgressDetailText
            Layout.fillWidth: true
        }
        DeskText {
            text: header.viewModel.auditProgressText
            font.pixelSize: 11
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignRight
            Layout.preferredWidth: 36
        }
        DeskText {
            text: header.viewModel.auditProgressDetailText
            color: Design.mutedText
            font.pixelSize: 11
            horizontalAlignment: Text.AlignRight
            Layout.preferredWidth: 240
        }
    }
    DeskText {
        visible: !header.viewModel.isReportRefreshing && header.viewModel.shell.hasApplications
        text: header.viewModel.shell.auditSummary
        color: Design.mutedText
        font.pixelSize: 11
        Layout.fillWidth: true
    }
}
