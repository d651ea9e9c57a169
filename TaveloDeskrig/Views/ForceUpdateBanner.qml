import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// An update is demanded before anything else.
Banner {
    id: banner

    required property DeskrigViewModel viewModel

    objectName: "force-update-banner"
    symbol: "exclamationmark.shield.fill"
    tint: Design.danger
    tintFill: Design.dangerTint
    color: "#fff1f2"
    line: "#fecdd3"
    Accessible.role: Accessible.AlertMessage
    Accessible.name: viewModel.updateTitle

    ColumnLayout {
        spacing: 4

        DeskText {
            text: banner.viewModel.updateTitle
            maximumLineCount: 1
            font.weight: Font.Bold
            Layout.fillWidth: true
        }
        WrappedText {
            text: banner.viewModel.updateMessage
            color: Design.mutedText
            font.pixelSize: 12
            maximumLineCount: 2
            Layout.fillWidth: true
        }
    }
    PlainButton {
        objectName: "download-update-button"
        text: banner.viewModel.strings.text(Labels.AppI18nKey.downloadUpdate)
        symbol: "arrow.down.circle.fill"
        onClicked: banner.viewModel.openReleaseDownload()
    }
}
