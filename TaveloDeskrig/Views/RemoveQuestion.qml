import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The question before an item is removed, and its two answers.
FocusScope {
    id: content

    required property DeskrigViewModel viewModel
    required property string message

    implicitWidth: 400
    implicitHeight: column.implicitHeight + 48
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: title.text
    Accessible.description: content.message

    Keys.onEscapePressed: content.viewModel.cancelUninstall()

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: 24
        spacing: 12

        WrappedText {
            id: title

            text: content.viewModel.strings.text(Labels.AppI18nKey.removePromptTitle)
            font.pixelSize: 17
            font.weight: Font.Bold
            Layout.fillWidth: true
        }
        WrappedText {
            text: content.message
            color: Design.mutedText
            Layout.fillWidth: true
        }
        RowLayout {
            spacing: 10
            Layout.topMargin: 8
            Layout.alignment: Qt.AlignRight

            PlainButton {
                objectName: "remove-cancel-button"
                text: content.viewModel.strings.text(Labels.AppI18nKey.cancel)
                focus: true
                leftPadding: 18
                rightPadding: 18
                onClicked: content.viewModel.cancelUninstall()
            }
            DefaultButton {
                objectName: "remove-confirm-button"
                text: content.viewModel.strings.text(Labels.AppI18nKey.remove)
                fill: Design.danger
                hoverFill: Qt.lighter(Design.danger, 1.08)
                pressedFill: Qt.darker(Design.danger, 1.08)
                onClicked: content.viewModel.confirmPendingUninstall()
            }
        }
    }
}
