import QtQuick
import Tavelo.Views

// Shows where the keyboard is.
Rectangle {
    anchors.fill: parent
    anchors.margins: -3
    radius: Design.radius + 3
    color: "transparent"
    border.width: 2
    border.color: Design.focusRing
}
