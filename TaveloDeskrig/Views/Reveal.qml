import QtQuick
import Tavelo.Views

// Lets what it holds come in from the upper edge, and go, with the gap above it.
Item {
    id: reveal

    required property bool shown
    property real gap: 0
    default property alias content: holder.data
    property real share: shown ? 1 : 0

    implicitHeight: share * (gap + holder.childrenRect.height)
    visible: share > 0
    opacity: share
    clip: true

    Behavior on share {
        NumberAnimation {
            duration: Design.bannerDuration
            easing.type: Easing.InOutQuad
        }
    }

    Item {
        id: holder

        width: reveal.width
        y: reveal.height - childrenRect.height
        height: childrenRect.height
    }
}
