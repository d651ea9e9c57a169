import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// How far the running operation is.
Banner {
    id: banner

    required property DeskrigViewModel viewModel

    objectName: "operation-banner"
    symbol: "arrow.down.circle.fill"
    color: "#fff4ef"
    line: "#fbd9cc"
    Accessible.role: Accessible.StatusBar
    Accessible.name: viewModel.currentAction

    ColumnLayout {
        spacing: 4
        Layout.minimumWidth: 220

        DeskText {
            text: banner.viewModel.strings.text(Labels.AppI18nKey.currentProgress)
            color: Design.mutedText
            font.pixelSize: 11
            font.weight: Font.Bold
            Layout.fillWidth: true
        }
        DeskText {
            text: banner.viewModel.currentAction
            elide: Text.ElideMiddle
            font.weight: Font.DemiBold
            Layout.fillWidth: true
        }
        DeskText {
            text: banner.viewModel.operationSummaryText
            color: Design.mutedText
            font.pixelSize: 12
            Layout.fillWidth: true
        }
    }
    ColumnLayout {
        spacing: 6
        Layout.minimumWidth: 260
        Layout.maximumWidth: 260

        DeskText {
            text: banner.viewModel.operationProgressText
            font.pixelSize: 12
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignRight
            Layout.preferredWidth: 48
            Layout.alignment: Qt.AlignRight
        }
        TaveloProgressBar {
            share: banner.viewModel.operationProgress
            implicitHeight: 6
            Accessible.name: banner.viewModel.operationSummaryText
            Layout.fillWidth: true
        }
    }
}
