import QtQuick
import Tavelo.Views

// What a button shows only at times: the ring while the keyboard is there, the tip while the pointer rests on it.
Item {
    id: extras

    required property DeskButton button

    FocusRing {
        parent: extras.button.background
        visible: extras.button.visualFocus
        border.color: extras.button.ringColor
    }
    HelpTip {
        button: extras.button
    }
}
