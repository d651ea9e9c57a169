import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// A share of a whole, from 0 to 1. Its value is the whole percentage, as a screen reader says it.
T.ProgressBar {
    id: bar

    required property double share
    readonly property double shownShare: Math.max(0, Math.min(share, 1))

    implicitWidth: 120
    implicitHeight: 8
    to: 100
    value: Math.round(100 * shownShare)
    Accessible.role: Accessible.ProgressBar

    background: Rectangle {
        radius: height / 2
        color: Design.track
    }
    contentItem: Item {
        Rectangle {
            width: bar.shownShare * parent.width
            height: parent.height
            radius: height / 2
            color: Design.primary
        }
    }
}
