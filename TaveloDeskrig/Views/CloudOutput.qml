import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// What the cloud has said. A long answer scrolls, and can be selected.
Rectangle {
    id: output

    required property string text
    required property string label

    implicitHeight: Math.min(answer.implicitHeight, 96)
    radius: Design.radius
    color: Design.hovered

    Flickable {
        anchors.fill: parent
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        T.TextArea.flickable: T.TextArea {
            id: answer

            objectName: "cloud-output"
            text: output.text
            textFormat: TextEdit.PlainText
            readOnly: true
            selectByMouse: true
            color: Design.slate
            selectionColor: Design.sidebarSelected
            selectedTextColor: "white"
            wrapMode: TextEdit.WrapAtWordBoundaryOrAnywhere
            padding: 8
            font.pixelSize: 11
            Accessible.role: Accessible.StaticText
            Accessible.name: output.label
            Accessible.description: text

            Keys.priority: Keys.BeforeItem
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        }
        T.ScrollBar.vertical: DeskScrollBar {}
    }
    FocusRing {
        visible: answer.activeFocus
    }
}
