import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The group's name, and how far this Mac is.
ColumnLayout {
    id: header

    required property DeskrigViewModel viewModel

    spacing: 14

    RowLayout {
        spacing: 12

        ColumnLayout {
            spacing: 4

            DeskText {
                text: header.viewModel.shell.headerTitle
                font.pixelSize: 26
                font.weight: Font.Bold
                Layout.fillWidth: true
                Accessible.role: Accessible.Heading
            }
            DeskText {
                text: header.viewModel.shell.headerSummary
                color: Design.mutedText
                Layout.fillWidth: true
            }
        }
        RefreshButtonStyle {
            objectName: "refresh-button"
            text: header.viewModel.strings.text(Labels.AppI18nKey.refresh)
            Layout.alignment: Qt.AlignTop
            onClicked: header.viewModel.refreshStatuses(true)
        }
    }
    RowLayout {
        spacing: 12

        DeskText {
            text: header.viewModel.shell.progressLabel
            color: Design.mutedText
            font.pixelSize: 12
        }
        TaveloProgressBar {
            share: header.viewModel.progress
            Accessible.name: header.viewModel.shell.progressLabel
            Layout.fillWidth: true
        }
        DeskButton {
            id: progressButton

            objectName: "progress-button"
            text: header.viewModel.progressText
            help: header.viewModel.strings.text(Labels.AppI18nKey.copyLogPathHelp)
            implicitHeight: 24
            leftPadding: 2
            rightPadding: 2
            hoverFill: "#0d17202a"
            pressedFill: "#1a17202a"
            font.weight: Font.Bold
            Layout.preferredWidth: 44
            onClicked: header.viewModel.copyLogPath()

            contentItem: DeskText {
                text: progressButton.text
                font: progressButton.font
                color: progressButton.foreground
                horizontalAlignment: Text.AlignRight
                Accessible.ignored: true
            }
        }
    }
}
