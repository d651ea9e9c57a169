import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A question whose Yes destroys something, and its two answers. The keyboard begins at No.
FocusScope {
    id: question

    required property string title
    required property string message
    required property string cancelText
    required property string confirmText
    required property string buttonPrefix
    signal cancelled
    signal confirmed

    implicitWidth: 400
    implicitHeight: column.implicitHeight + 48
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: title
    Accessible.description: message

    Keys.onEscapePressed: cancelled()

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: 24
        spacing: 12

        WrappedText {
            text: question.title
            font.pixelSize: 17
            font.weight: Font.Bold
            Layout.fillWidth: true
        }
        WrappedText {
            text: question.message
            color: Design.mutedText
            Layout.fillWidth: true
        }
        RowLayout {
            spacing: 10
            Layout.topMargin: 8
            Layout.alignment: Qt.AlignRight

            PlainButton {
                objectName: question.buttonPrefix + "-cancel-button"
                text: question.cancelText
                focus: true
                leftPadding: 18
                rightPadding: 18
                onClicked: question.cancelled()
            }
            DefaultButton {
                objectName: question.buttonPrefix + "-confirm-button"
                text: question.confirmText
                fill: Design.danger
                hoverFill: Qt.lighter(Design.danger, 1.08)
                pressedFill: Qt.darker(Design.danger, 1.08)
                onClicked: question.confirmed()
            }
        }
    }
}
