import QtQuick
import Tavelo.Views

// Opens the settings.
DeskButton {
    id: entry

    implicitHeight: 42
    leading: true
    symbol: "gearshape"
    symbolSize: 12
    symbolWidth: 18
    spacing: 10
    rightPadding: 34
    foreground: "white"
    fill: "#12ffffff"
    hoverFill: "#1fffffff"
    pressedFill: "#2effffff"
    borderColor: "#14ffffff"
    ringColor: Design.sidebarAction
    font.weight: Font.ExtraBold

    SymbolIcon {
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        symbol: "chevron.right"
        size: 10
        color: entry.foreground
    }
}
