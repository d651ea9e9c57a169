import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A card of the report's form.
FocusScope {
    id: part

    property alias title: head.title
    property alias subtitle: head.subtitle
    property alias symbol: head.symbol
    property alias tint: head.tint
    default property alias content: fields.data

    implicitWidth: 300
    implicitHeight: card.implicitHeight

    Card {
        id: card

        anchors.fill: parent

        PartHead {
            id: head
        }
        ColumnLayout {
            id: fields

            spacing: 8
        }
    }
}
