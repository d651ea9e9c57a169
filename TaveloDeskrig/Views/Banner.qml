import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A message across the content, with a symbol before it.
Rectangle {
    id: banner

    property string symbol: ""
    property color tint: Design.primary
    property color tintFill: Design.primaryTint
    property color line: Design.border
    default property alias content: row.data

    implicitHeight: row.implicitHeight + 20

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 1
        color: banner.line
    }
    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: 24
        anchors.rightMargin: 24
        anchors.topMargin: 10
        anchors.bottomMargin: 10
        spacing: 14

        Rectangle {
            radius: 10
            color: banner.tintFill
            Layout.preferredWidth: 42
            Layout.preferredHeight: 42

            SymbolIcon {
                anchors.centerIn: parent
                symbol: banner.symbol
                size: 22
                color: banner.tint
            }
            Text {
                anchors.centerIn: parent
                text: Symbols.mark(banner.symbol)
                color: "white"
                font.pixelSize: 17
                font.weight: Font.Black
                textFormat: Text.PlainText
                Accessible.ignored: true
            }
        }
    }
}
