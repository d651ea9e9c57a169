import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A short message.
Item {
    id: view

    required property string text
    required property int kind
    property real offset: 0
    readonly property tone look: Tones.toast(kind)

    implicitWidth: Math.min(360, row.implicitWidth + 28)
    implicitHeight: row.implicitHeight + 20
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    transform: Translate {
        y: view.offset
    }

    SoftShadow {}
    Rectangle {
        anchors.fill: parent
        radius: Design.radius
        color: Design.card
        border.color: view.look.border
    }
    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: 14
        anchors.rightMargin: 14
        anchors.topMargin: 10
        anchors.bottomMargin: 10
        spacing: 10

        SymbolIcon {
            symbol: view.look.symbol
            size: 15
            color: view.look.text
        }
        WrappedText {
            text: view.text
            maximumLineCount: 4
            font.weight: Font.DemiBold
            Layout.fillWidth: true
            Accessible.ignored: true
        }
    }
}
