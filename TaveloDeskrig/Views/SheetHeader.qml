import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A sheet's title, with a symbol before it and a button that closes it.
RowLayout {
    id: header

    property string title: ""
    property string subtitle: ""
    property string symbol: ""
    property real titleSize: 22
    property real subtitleSize: 13
    property color titleColor: Design.text
    property color subtitleColor: Design.mutedText
    property string closeHelp: ""
    property string closeName: "sheet-close-button"
    default property alias trailing: trailing.data
    signal closed

    spacing: 12

    SymbolIcon {
        visible: header.symbol !== ""
        symbol: header.symbol
        size: 22
        color: Design.primary
        Layout.alignment: Qt.AlignTop
    }
    ColumnLayout {
        spacing: 4

        // The one place that tells a long name whole.
        Item {
            implicitHeight: title.implicitHeight
            Layout.fillWidth: true

            DeskText {
                id: title

                width: parent.width
                text: header.title
                color: header.titleColor
                wrapMode: Text.Wrap
                maximumLineCount: 3
                font.pixelSize: header.titleSize
                font.weight: Font.Bold
                Accessible.role: Accessible.Heading
            }
        }
        WrappedText {
            visible: text !== ""
            text: header.subtitle
            color: header.subtitleColor
            font.pixelSize: header.subtitleSize
            maximumLineCount: 3
            Layout.fillWidth: true
        }
    }
    RowLayout {
        id: trailing

        spacing: 8
        Layout.fillWidth: false
        Layout.alignment: Qt.AlignTop
    }
    IconButton {
        objectName: header.closeName
        symbol: "xmark"
        help: header.closeHelp
        implicitHeight: 28
        foreground: Design.mutedText
        Layout.alignment: Qt.AlignTop
        onClicked: header.closed()
    }
}
