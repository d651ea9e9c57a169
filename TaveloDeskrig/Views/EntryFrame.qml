import QtQuick
import Tavelo.Views

// The frame of a place to write.
Rectangle {
    property bool focused: false
    property bool hovered: false

    radius: 6
    color: Design.card
    border.width: focused ? 2 : 1
    border.color: focused ? Design.focusRing : hovered ? "#b8c2d0" : Design.border
}
