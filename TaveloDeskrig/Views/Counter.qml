import QtQuick
import Tavelo.Views

// A number on a breath of its colour.
Rectangle {
    id: counter

    property string text: ""
    property color tint: Design.primary

    implicitWidth: Math.ceil(label.implicitWidth) + 20
    implicitHeight: 26
    radius: 13
    color: Qt.rgba(tint.r, tint.g, tint.b, 0.12)

    DeskText {
        id: label

        anchors.centerIn: parent
        text: counter.text
        color: Qt.darker(counter.tint, 1.15)
        font.pixelSize: 11
        font.weight: Font.Bold
    }
}
