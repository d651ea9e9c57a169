import QtQuick
import Tavelo.Views

// A short message. Its width follows from the words alone: what a text wants changes with the room that it gets, and
// that with what it wants.
Item {
    id: view

    required property string text
    required property int kind
    property real offset: 0
    readonly property tone look: Tones.toast(kind)

    implicitWidth: Math.min(360, icon.width + Math.ceil(measure.advanceWidth) + 38)
    implicitHeight: message.implicitHeight + 20
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    transform: Translate {
        y: view.offset
    }

    TextMetrics {
        id: measure

        text: view.text
        font: message.font
    }
    SoftShadow {}
    Rectangle {
        anchors.fill: parent
        radius: Design.radius
        color: Design.card
        border.color: view.look.border
    }
    SymbolIcon {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        symbol: view.look.symbol
        size: 15
        color: view.look.text
    }
    WrappedText {
        id: message

        anchors.left: icon.right
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        width: view.implicitWidth - icon.width - 38
        text: view.text
        maximumLineCount: 4
        font.weight: Font.DemiBold
        Accessible.ignored: true
    }
}
