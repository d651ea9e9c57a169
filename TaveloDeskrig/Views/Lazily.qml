import QtQuick
import Tavelo.Views

// Makes a view when it is first needed, and keeps it. The first frame does not wait for what it does not show.
Loader {
    required property bool needed
    required property url view
    required property DeskrigViewModel viewModel

    function make() {
        // A view that is needed from the start is so before it has its model.
        if (needed && viewModel && status === Loader.Null)
            setSource(view, {
                "viewModel": viewModel
            });
    }

    visible: needed
    onNeededChanged: make()
    Component.onCompleted: make()
}
