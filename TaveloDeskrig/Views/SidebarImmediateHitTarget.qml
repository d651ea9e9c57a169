import QtQuick

// Acts when the button goes down, not when it comes up: a change of screen starts at the press.
MouseArea {
    signal activated

    preventStealing: true
    cursorShape: Qt.PointingHandCursor
    Accessible.ignored: true
    onPressed: activated()
}
