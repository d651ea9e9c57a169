import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The result of one check.
Rectangle {
    id: row

    required property string name
    required property string detail
    required property string level

    implicitHeight: content.implicitHeight + 24
    radius: Design.radius
    color: Design.card
    border.color: Design.border
    Accessible.role: Accessible.ListItem
    Accessible.name: "%1: %2".arg(name).arg(level)
    Accessible.description: detail

    RowLayout {
        id: content

        anchors.fill: parent
        anchors.margins: 12
        spacing: 12

        Pill {
            implicitWidth: 52
            implicitHeight: 24
            horizontalPadding: 4
            text: row.level
            tone: Tones.checkLevel(row.level)
            border.width: 0
            font.weight: Font.Bold
            Layout.alignment: Qt.AlignTop
        }
        ColumnLayout {
            spacing: 4

            DeskText {
                text: row.name
                font.weight: Font.Bold
                Layout.fillWidth: true
            }
            WrappedText {
                text: row.detail
                color: Design.mutedText
                font.pixelSize: 12
                Layout.fillWidth: true
            }
        }
    }
}
