import QtQuick
import Tavelo.Views

// The program's mark.
Rectangle {
    implicitWidth: 46
    implicitHeight: 46
    radius: 10
    color: "white"
    Accessible.ignored: true

    DeskText {
        anchors.centerIn: parent
        anchors.horizontalCenterOffset: -3
        text: "T"
        color: Design.primary
        font.pixelSize: 34
        font.weight: Font.Black
        font.italic: true
        Accessible.ignored: true
    }
    Rectangle {
        x: 33
        y: 11
        width: 7
        height: 7
        radius: 3.5
        color: Design.sidebarAction
    }
    Rectangle {
        x: 33
        y: 28
        width: 7
        height: 7
        radius: 3.5
        color: Design.sidebar
    }
}
