import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A value below its title.
ColumnLayout {
    id: line

    required property string title
    required property string value

    spacing: 4
    Accessible.role: Accessible.ListItem
    Accessible.name: "%1: %2".arg(title).arg(value)

    DeskText {
        text: line.title
        color: Design.mutedText
        font.pixelSize: 11
        font.weight: Font.Bold
        Layout.fillWidth: true
    }
    WrappedText {
        text: line.value
        Layout.fillWidth: true
    }
}
