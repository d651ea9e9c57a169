pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// The program's one window.
T.ApplicationWindow {
    id: window

    required property DeskrigViewModel viewModel

    title: "Tavelo Deskrig"
    color: Design.background
    visible: true

    WindowChromeConfigurator {
        window: window
    }

    MainWindowView {
        anchors.fill: parent
        focus: true
        viewModel: window.viewModel
    }
}
