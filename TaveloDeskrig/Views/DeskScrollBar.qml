import QtQuick
import QtQuick.Templates as T

// A thin bar that shows where in a list one is.
T.ScrollBar {
    id: bar

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 2
    visible: size < 1
    minimumSize: height > 0 ? Math.max(0.06, 28 / height) : 0.06 // large enough to be taken hold of

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: bar.pressed ? "#8f98a8" : bar.hovered ? "#a9b1be" : "#c8cdd6"
    }
}
