import QtQuick
import Tavelo.Views

// The button that makes the report; muted while it cannot.
DeskButton {
    foreground: "white"
    fill: enabled ? Design.primary : "#98a2b3"
    hoverFill: Qt.lighter(fill, 1.08)
    pressedFill: Qt.darker(fill, 1.1)
    opacity: 1
    font.weight: Font.Bold
}
