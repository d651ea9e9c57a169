import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The status line, and the log's handle.
Rectangle {
    id: footer

    required property DeskrigViewModel viewModel

    implicitHeight: row.implicitHeight + 24
    color: Design.background

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        height: 1
        color: Design.border
    }
    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: 22
        anchors.rightMargin: 22
        anchors.topMargin: 12
        anchors.bottomMargin: 12
        spacing: 8

        // A dot, and no tick: the line may tell of a failure.
        Rectangle {
            radius: 5
            color: "#22c55e"
            Layout.preferredWidth: 10
            Layout.preferredHeight: 10
        }
        DeskText {
            objectName: "status-line"
            text: "%1: %2".arg(footer.viewModel.strings.text(Labels.AppI18nKey.footerStatus)).arg(footer.viewModel.currentAction)
            maximumLineCount: 1
            font.weight: Font.DemiBold
            Layout.fillWidth: true
            Accessible.role: Accessible.StatusBar
        }
        DeskButton {
            objectName: "log-button"
            text: footer.viewModel.strings.text(footer.viewModel.showLogDrawer ? Labels.AppI18nKey.hideLog : Labels.AppI18nKey.showLog)
            foreground: Design.slate
            hoverFill: "#0d17202a"
            pressedFill: "#1a17202a"
            implicitHeight: 24
            leftPadding: 8
            rightPadding: 8
            font.pixelSize: 13
            font.weight: Font.Bold
            onClicked: footer.viewModel.setShowLogDrawer(!footer.viewModel.showLogDrawer)
        }
    }
}
