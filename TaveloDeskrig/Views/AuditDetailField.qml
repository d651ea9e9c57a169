import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tavelo.Views

// A value below its title, which can be selected.
ColumnLayout {
    id: field

    required property string title
    required property string value
    required property bool monospaced

    spacing: 3
    Accessible.role: Accessible.ListItem
    Accessible.name: "%1: %2".arg(title).arg(value)

    DeskText {
        text: field.title
        color: Design.mutedText
        font.pixelSize: 11
        font.weight: Font.Bold
        Layout.fillWidth: true
    }
    T.TextArea {
        id: value

        text: field.value
        textFormat: TextEdit.PlainText
        readOnly: true
        selectByMouse: true
        activeFocusOnTab: false
        wrapMode: TextEdit.WrapAtWordBoundaryOrAnywhere
        color: Design.text
        selectionColor: Design.sidebarSelected
        selectedTextColor: "white"
        implicitHeight: contentHeight
        font.pixelSize: 13
        Layout.fillWidth: true
        Accessible.name: field.title

        Binding on font.family {
            when: field.monospaced
            value: Surroundings.fixedFamily
        }
    }
}
