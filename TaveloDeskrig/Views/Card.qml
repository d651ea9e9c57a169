import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A white ground for what belongs together.
Rectangle {
    id: card

    property real padding: 12
    property alias spacing: column.spacing
    default property alias content: column.data

    implicitWidth: column.implicitWidth + 2 * padding
    implicitHeight: column.implicitHeight + 2 * padding
    radius: Design.radius
    color: Design.card
    border.color: Design.border

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: card.padding
        spacing: 10
    }
}
