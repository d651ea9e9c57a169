import QtQuick
import Tavelo.Views

// The upper end of the table's card: what the table is of, and room for the titles of its columns.
Item {
    id: head

    required property appStrings strings
    required property real titlesHeight

    implicitHeight: part.implicitHeight + 18 + titlesHeight

    PartHead {
        id: part

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 12
        title: head.strings.screenText(Screens.ScreenText.softwareTitle)
        subtitle: head.strings.screenText(Screens.ScreenText.softwareSubtitle)
        symbol: "square.stack.3d.up.fill"
        tint: "#0f766e"
    }
}
