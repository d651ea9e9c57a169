import QtQuick
import Tavelo.Views

// Lets a view come in from the upper edge, and go, with the gap above it.
Item {
    id: reveal

    required property bool shown
    required property url view
    required property DeskrigViewModel viewModel
    property real gap: 0
    property real share: shown ? 1 : 0

    implicitHeight: share * (gap + holder.height)
    visible: share > 0
    opacity: share
    clip: true

    Behavior on share {
        NumberAnimation {
            duration: Design.bannerDuration
            easing.type: Easing.InOutQuad
        }
    }

    Lazily {
        id: holder

        needed: reveal.share > 0
        view: reveal.view
        viewModel: reveal.viewModel
        width: reveal.width
        y: reveal.height - height
    }
}
