import QtQuick
import Tavelo.Views

// Shows where the keyboard is.
Rectangle {
    property real cornerRadius: Design.radius

    anchors.fill: parent
    anchors.margins: -3
    radius: cornerRadius + 3
    color: "transparent"
    border.width: 2
    border.color: Design.focusRing
}
