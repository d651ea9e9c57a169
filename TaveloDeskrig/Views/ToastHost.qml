pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// Brings the toast in from the lower edge, over everything, and lets it go.
T.Popup {
    id: host

    required property DeskrigViewModel viewModel
    readonly property bool shown: viewModel.toast.isShown
    property string text: viewModel.toast.text // from its making, so that it is laid out with its words
    property int kind: viewModel.toast.kind
    property real offset: 0

    parent: T.Overlay.overlay
    x: parent ? parent.width - width - 24 : 0
    y: parent ? parent.height - height - 24 : 0
    z: 10
    implicitWidth: implicitContentWidth
    implicitHeight: implicitContentHeight
    padding: 0
    margins: -1
    visible: shown
    closePolicy: T.Popup.NoAutoClose

    contentItem: ToastView {
        objectName: "toast"
        text: host.text
        kind: host.kind
        offset: host.offset
    }
    enter: Transition {
        NumberAnimation {
            property: "offset"
            from: 40
            to: 0
            duration: Design.bannerDuration
            easing.type: Easing.InOutQuad
        }
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Design.bannerDuration
        }
    }
    exit: Transition {
        NumberAnimation {
            property: "offset"
            to: 40
            duration: Design.bannerDuration
            easing.type: Easing.InOutQuad
        }
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Design.bannerDuration
        }
    }

    Component.onCompleted: take()

    // What goes keeps its words until it is gone.
    function take() {
        if (!shown)
            return;
        text = viewModel.toast.text;
        kind = viewModel.toast.kind;
    }

    Connections {
        target: host.viewModel

        function onToastChanged() {
            host.take();
        }
    }
}
