import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// What the cloud says. A long answer scrolls.
Rectangle {
    id: output

    required property string text
    required property string label

    implicitHeight: Math.min(96, area.contentHeight + 16)
    radius: Design.radius
    color: Design.hovered
    border.width: area.activeFocus ? 2 : 0
    border.color: Design.focusRing

    Flickable {
        id: view

        anchors.fill: parent
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        T.TextArea.flickable: T.TextArea {
            id: area

            text: output.text
            textFormat: TextEdit.PlainText
            readOnly: true
            selectByMouse: true
            wrapMode: TextEdit.WrapAtWordBoundaryOrAnywhere
            color: Design.slate
            selectionColor: Design.sidebarSelected
            selectedTextColor: "white"
            padding: 8
            font.pixelSize: 11
            Accessible.name: output.label

            Keys.priority: Keys.BeforeItem
            Keys.onUpPressed: view.flick(0, 600)
            Keys.onDownPressed: view.flick(0, -600)
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        }
        T.ScrollBar.vertical: DeskScrollBar {}
    }
}
