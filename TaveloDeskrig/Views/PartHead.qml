import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A card's symbol, title and subtitle.
RowLayout {
    id: head

    property string title: ""
    property string subtitle: ""
    property string symbol: ""
    property color tint: Design.primary

    spacing: 10

    Rectangle {
        radius: Design.radius
        color: Qt.rgba(head.tint.r, head.tint.g, head.tint.b, 0.12)
        Layout.preferredWidth: 32
        Layout.preferredHeight: 32

        SymbolIcon {
            anchors.centerIn: parent
            symbol: head.symbol
            size: 15
            color: head.tint
        }
    }
    ColumnLayout {
        spacing: 2

        DeskText {
            text: head.title
            font.weight: Font.Bold
            Layout.fillWidth: true
        }
        DeskText {
            text: head.subtitle
            color: Design.mutedText
            font.pixelSize: 11
            Layout.fillWidth: true
        }
    }
}
