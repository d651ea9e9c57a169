import QtQuick
import Tavelo.Views

// The main button of an item.
DeskButton {
    id: button

    property bool primary: true

    foreground: "white"
    fill: Design.primary
    hoverFill: Qt.lighter(Design.primary, 1.08)
    pressedFill: Qt.rgba(Design.primary.r, Design.primary.g, Design.primary.b, 0.82)
    borderColor: primary ? "transparent" : "#8d68ff"
    leftPadding: 6
    rightPadding: 6
    font.weight: Font.ExtraBold

    contentItem: DeskText {
        text: button.text
        font: button.font
        color: button.foreground
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
    }
}
