import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A remark on what is shown.
Rectangle {
    id: notice

    property string symbol: ""
    property string text: ""
    property color foreground: Design.mutedText
    property color fill: Design.iconFrame

    implicitHeight: row.implicitHeight + 16
    radius: Design.radius
    color: fill

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.margins: 8
        spacing: 8

        SymbolIcon {
            visible: notice.symbol !== ""
            symbol: notice.symbol
            size: 12
            color: notice.foreground
            Layout.alignment: Qt.AlignTop
        }
        WrappedText {
            text: notice.text
            color: notice.foreground
            font.pixelSize: 11
            Layout.fillWidth: true
        }
    }
}
