import QtQuick
import Tavelo.Views

// An entry of the sidebar that shows another screen. It acts at the press.
DeskButton {
    id: entry

    property bool selected: false
    signal activated

    implicitHeight: 34
    leading: true
    spacing: 10
    symbolWidth: 22
    symbolSize: 17
    foreground: "white"
    fill: selected ? Design.sidebarSelected : "transparent"
    hoverFill: selected ? Design.sidebarSelected : "#14ffffff"
    pressedFill: selected ? Design.sidebarSelected : "#24ffffff"
    ringColor: Design.sidebarMuted
    font.pixelSize: 13
    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: selected

    onClicked: activated()

    SidebarImmediateHitTarget {
        anchors.fill: parent
        onActivated: {
            entry.forceActiveFocus(Qt.MouseFocusReason);
            entry.activated();
        }
    }
}
