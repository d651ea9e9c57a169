import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tavelo.Views

// A line of text below its label.
FocusScope {
    id: field

    required property string label
    required property string text
    property alias validator: input.validator
    signal edited(string text)

    function selectFirst(length: int) {
        input.select(0, length);
    }

    implicitHeight: column.implicitHeight

    ColumnLayout {
        id: column

        anchors.fill: parent
        spacing: 4

        DeskText {
            text: field.label
            color: Design.mutedText
            font.pixelSize: 11
            font.weight: Font.DemiBold
            Layout.fillWidth: true
            Accessible.ignored: true
        }
        T.TextField {
            id: input

            focus: true
            text: field.text
            color: Design.text
            selectionColor: Design.sidebarSelected
            selectedTextColor: "white"
            selectByMouse: true
            leftPadding: 10
            rightPadding: 10
            verticalAlignment: TextInput.AlignVCenter
            implicitHeight: 34
            font.pixelSize: 13
            Layout.fillWidth: true
            Accessible.name: field.label
            onTextEdited: field.edited(text)

            background: EntryFrame {
                focused: input.activeFocus
                hovered: input.hovered
            }
        }
    }
}
