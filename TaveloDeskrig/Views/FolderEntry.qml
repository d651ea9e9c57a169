import QtQuick
import Tavelo.Views

// A folder or a PDF in a list of them.
Item {
    id: entry

    required property string fileName
    required property bool fileIsDir
    required property bool isCurrent

    signal chosen
    signal opened

    implicitHeight: 30
    Accessible.role: Accessible.ListItem
    Accessible.name: fileName
    Accessible.focusable: true
    Accessible.focused: isCurrent

    // Not a handler: those of the rows below the dialog would take the same tap.
    MouseArea {
        anchors.fill: parent
        onClicked: entry.chosen()
        onDoubleClicked: entry.opened()
    }
    Rectangle {
        anchors.fill: parent
        radius: 6
        color: Design.primary
        visible: entry.isCurrent
    }
    SymbolIcon {
        id: icon

        x: 8
        anchors.verticalCenter: parent.verticalCenter
        symbol: entry.fileIsDir ? "folder.fill" : "doc.richtext"
        size: 14
        color: entry.isCurrent ? "white" : "#7c8da6"
    }
    DeskText {
        anchors.left: icon.right
        anchors.right: parent.right
        anchors.leftMargin: 8
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        text: entry.fileName
        elide: Text.ElideMiddle
        color: entry.isCurrent ? "white" : Design.text
        Accessible.ignored: true
    }
}
