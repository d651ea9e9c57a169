import QtQuick
import Tavelo.Views

// A sheet's default button.
DeskButton {
    foreground: "white"
    fill: Design.primary
    hoverFill: Qt.lighter(Design.primary, 1.08)
    pressedFill: Qt.darker(Design.primary, 1.08)
    leftPadding: 18
    rightPadding: 18
}
