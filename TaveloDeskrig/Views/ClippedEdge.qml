import QtQuick
import Tavelo.Views

// A fade over an edge of a flickable behind which there is more.
Rectangle {
    id: edge

    required property Flickable flickable
    required property bool atTop

    parent: flickable
    visible: atTop ? !flickable.atYBeginning : !flickable.atYEnd
    y: atTop ? 0 : flickable.height - height
    width: flickable.width
    height: 20

    gradient: Gradient {
        GradientStop {
            position: edge.atTop ? 1 : 0
            color: "#00111c2b"
        }
        GradientStop {
            position: edge.atTop ? 0 : 1
            color: Design.sidebar
        }
    }
}
