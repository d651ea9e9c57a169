import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// Titled values, which the arrow keys scroll.
ListView {
    id: list

    clip: true
    cacheBuffer: 0
    spacing: 12
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: contentHeight > height
    keyNavigationEnabled: true
    Accessible.role: Accessible.List

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
