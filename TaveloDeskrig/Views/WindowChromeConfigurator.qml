import QtQuick

// Gives the window its smallest size and its place.
Item {
    id: configurator

    required property Window window
    readonly property size smallest: Qt.size(1120, 760)

    Component.onCompleted: {
        window.minimumWidth = smallest.width;
        window.minimumHeight = smallest.height;
        window.width = Math.max(window.width, smallest.width);
        window.height = Math.max(window.height, smallest.height);
        window.x = Screen.virtualX + Math.max(0, (Screen.width - window.width) / 2);
        window.y = Screen.virtualY + Math.max(0, (Screen.height - window.height) / 2);
    }
}
