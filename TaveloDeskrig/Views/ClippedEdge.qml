import QtQuick
import Tavelo.Views

// A fade over an edge of a flickable behind which there is more.
Rectangle {
    id: edge

    required property Flickable flickable
    required property bool atTop
    property color ground: Design.sidebar

    parent: flickable
    visible: atTop ? !flickable.atYBeginning : !flickable.atYEnd
    y: atTop ? 0 : flickable.height - height
    width: flickable.width
    height: 20

    gradient: Gradient {
        GradientStop {
            position: edge.atTop ? 1 : 0
            color: Qt.alpha(edge.ground, 0)
        }
        GradientStop {
            position: edge.atTop ? 0 : 1
            color: edge.ground
        }
    }
}
