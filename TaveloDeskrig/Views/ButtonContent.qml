import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A button's symbol and text, in the middle or at its leading edge.
Item {
    id: content

    required property string symbol
    required property real symbolSize
    required property real symbolWidth
    required property color symbolColor
    required property string text
    required property font font
    required property color foreground
    required property bool leading
    required property real spacing

    implicitWidth: Math.ceil(row.implicitWidth)
    implicitHeight: row.implicitHeight

    RowLayout {
        id: row

        anchors.verticalCenter: parent.verticalCenter
        x: content.leading ? 0 : (parent.width - width) / 2
        width: content.leading ? parent.width : Math.min(implicitWidth, parent.width)
        spacing: content.spacing

        SymbolIcon {
            visible: content.symbol !== ""
            symbol: content.symbol
            size: content.symbolSize
            color: content.symbolColor
            Layout.preferredWidth: content.symbolWidth
        }
        DeskText {
            visible: content.text !== ""
            text: content.text
            font: content.font
            color: content.foreground
            Layout.fillWidth: true
            Accessible.ignored: true
        }
    }
}
