import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// Whether this Mac is ready, or what was found on it.
Rectangle {
    id: card

    required property DeskrigViewModel viewModel

    implicitHeight: content.implicitHeight + 24
    radius: Design.radius
    color: "#12ffffff"
    border.color: "#14ffffff"
    Accessible.role: Accessible.Grouping
    Accessible.name: viewModel.shell.summaryTitle

    RowLayout {
        id: content

        anchors.fill: parent
        anchors.margins: 12
        spacing: 10

        SymbolIcon {
            symbol: "shield.lefthalf.filled"
            size: 14
            color: "#d1ffffff"
            Layout.preferredWidth: 18
            Layout.alignment: Qt.AlignTop
        }
        ColumnLayout {
            spacing: 4

            RowLayout {
                spacing: 8

                DeskText {
                    text: card.viewModel.shell.summaryTitle
                    color: "white"
                    font.weight: Font.Bold
                    Layout.fillWidth: true
                }
                Pill {
                    objectName: "readiness-pill"
                    visible: text !== ""
                    implicitHeight: 16
                    horizontalPadding: 6
                    radius: 8
                    text: card.viewModel.shell.readiness
                    tone: Tones.readiness(card.viewModel.shell.readinessLevel)
                    border.width: 0
                    font.weight: Font.Bold
                }
            }
            WrappedText {
                text: card.viewModel.shell.summaryDetail
                color: Design.sidebarMuted
                font.pixelSize: 11
                maximumLineCount: 4
                Layout.fillWidth: true
            }
            DeskText {
                text: card.viewModel.shell.linuxSource
                color: Design.sidebarMuted
                font.pixelSize: 11
                Layout.fillWidth: true
            }
            DeskText {
                text: card.viewModel.shell.version
                color: Design.sidebarMuted
                font.pixelSize: 11
                Layout.fillWidth: true
            }
        }
    }
}
