import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// What lies over the window until it is answered. It dims the rest and keeps the keyboard to itself.
T.Popup {
    id: dialog

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    padding: 0
    margins: 24
    modal: true
    focus: true
    closePolicy: T.Popup.NoAutoClose
    implicitWidth: implicitContentWidth
    implicitHeight: implicitContentHeight

    T.Overlay.modal: Rectangle {
        color: Design.dim

        Behavior on opacity {
            NumberAnimation {
                duration: Design.bannerDuration
            }
        }
    }
    background: Rectangle {
        radius: 12
        color: Design.background

        SoftShadow {
            cornerRadius: 12
            reach: 12
        }
    }
    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Design.bannerDuration
        }
    }
    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Design.bannerDuration
        }
    }
}
