pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// The program's one window. It is shown when it has its size and place.
T.ApplicationWindow {
    id: window

    required property DeskrigViewModel viewModel

    title: "Tavelo Deskrig"
    color: Design.background

    WindowChromeConfigurator {
        window: window
    }

    MainWindowView {
        anchors.fill: parent
        focus: true
        viewModel: window.viewModel
    }
}
