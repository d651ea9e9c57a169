import QtQuick
import Tavelo.Views

// A text over several lines. A layout sets the size of what it holds, and a text of a set height would stay at the lines
// that it had at first; so the layout gets a frame, and the text takes the lines that it needs.
Item {
    property alias text: label.text
    property alias color: label.color
    property alias font: label.font
    property alias maximumLineCount: label.maximumLineCount
    property alias horizontalAlignment: label.horizontalAlignment

    implicitWidth: Math.ceil(label.implicitWidth)
    implicitHeight: label.implicitHeight

    DeskText {
        id: label

        width: parent.width
        wrapMode: Text.Wrap
    }
}
