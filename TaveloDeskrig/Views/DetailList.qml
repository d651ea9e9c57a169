import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tavelo.Views

// Titled values, which the arrow keys scroll. Reaches into the margins of its sheet, with a bar and with the ring that
// shows the keyboard to be there.
ListView {
    id: list

    clip: true
    cacheBuffer: 0
    spacing: 12
    leftMargin: 10
    topMargin: 8
    bottomMargin: 8
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: contentHeight + topMargin + bottomMargin > height
    keyNavigationEnabled: true
    Accessible.role: Accessible.List
    Layout.fillWidth: true
    Layout.fillHeight: true
    Layout.leftMargin: -leftMargin
    Layout.rightMargin: -14
    Layout.topMargin: -topMargin
    Layout.bottomMargin: -bottomMargin

    Keys.onUpPressed: flick(0, 600)
    Keys.onDownPressed: flick(0, -600)

    T.ScrollBar.vertical: DeskScrollBar {}

    ClippedEdge {
        flickable: list
        atTop: true
        ground: Design.background
    }
    ClippedEdge {
        flickable: list
        atTop: false
        ground: Design.background
    }
    FocusRing {
        parent: list
        anchors.margins: 0
        visible: list.activeFocus && Surroundings.byKeyboard
    }
}
