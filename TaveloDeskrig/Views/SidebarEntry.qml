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
    foreground: "white"
    symbolColor: "#ebffffff"
    fill: selected ? Design.sidebarSelected : "transparent"
    hoverFill: selected ? Design.sidebarSelected : "#14ffffff"
    pressedFill: selected ? Qt.darker(Design.sidebarSelected, 1.12) : "#24ffffff"
    ringColor: Design.sidebarMuted
    font.pixelSize: 13
    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: selected

    onClicked: activated()

    Binding on down {
        when: hitTarget.pressed
        value: true
    }

    SidebarImmediateHitTarget {
        id: hitTarget

        anchors.fill: parent
        onActivated: {
            entry.forceActiveFocus(Qt.MouseFocusReason);
            entry.activated();
        }
    }
}
