import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A pill below what it is of.
ColumnLayout {
    id: labelled

    property string label: ""
    property string text: ""
    property tone tone

    spacing: 3
    Layout.fillWidth: false

    DeskText {
        text: labelled.label
        color: Design.mutedText
        font.pixelSize: 10
        Layout.fillWidth: true
    }
    Pill {
        text: labelled.text
        tone: labelled.tone
        implicitHeight: 20
        radius: 10
        font.pixelSize: 10
        Layout.fillWidth: true
        Layout.maximumWidth: implicitWidth
    }
}
