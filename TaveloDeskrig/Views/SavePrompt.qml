import QtQuick
import Tavelo.Views

// The window's own save panel. It is made anew each time, so that it shows the folder as it is.
Item {
    id: prompt

    required property DeskrigViewModel viewModel

    DeskDialog {
        implicitWidth: loader.implicitWidth
        implicitHeight: loader.implicitHeight
        visible: prompt.viewModel.savePanelShown
        onAboutToShow: loader.setSource("SaveForm.qml", {
            "viewModel": prompt.viewModel
        })
        onClosed: loader.source = ""

        Loader {
            id: loader

            anchors.fill: parent
            focus: true
        }
    }
}
