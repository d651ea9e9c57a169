import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// Titled values, which the arrow keys scroll.
ListView {
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
}
