import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// A place for several lines. Tab goes on to the next place.
FocusScope {
    id: notes

    required property string label
    required property string text
    signal edited(string text)

    implicitHeight: 46

    EntryFrame {
        anchors.fill: parent
        focused: input.activeFocus
    }
    Flickable {
        anchors.fill: parent
        anchors.margins: 2
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        T.TextArea.flickable: T.TextArea {
            id: input

            focus: true
            text: notes.text
            textFormat: TextEdit.PlainText
            color: Design.text
            selectionColor: Design.sidebarSelected
            selectedTextColor: "white"
            selectByMouse: true
            wrapMode: TextEdit.WrapAtWordBoundaryOrAnywhere
            padding: 8
            font.pixelSize: 13
            Accessible.name: notes.label
            onTextChanged: {
                if (activeFocus)
                    notes.edited(text);
            }

            Keys.priority: Keys.BeforeItem
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        }
        T.ScrollBar.vertical: DeskScrollBar {}
    }
}
