import QtQuick
import Tavelo.Views

// Asks where the PDF goes: a Mac with its own panel, any other system with the window's, since what it has speaks a
// language of its own and replaces a file unasked. Takes no place where it stands.
Loader {
    required property DeskrigViewModel viewModel

    visible: false
    Component.onCompleted: setSource(Qt.platform.os === "osx" ? "MacSavePanel.qml" : "SavePrompt.qml", {
        "viewModel": viewModel
    })
}
