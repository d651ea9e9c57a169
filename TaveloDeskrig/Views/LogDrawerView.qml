pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// What the tools said, the newest line in sight.
Rectangle {
    id: drawer

    objectName: "log-drawer"

    required property DeskrigViewModel viewModel

    implicitHeight: 130
    radius: Design.radius
    color: Design.card
    border.color: list.activeFocus ? Design.focusRing : Design.border

    ListView {
        id: list

        objectName: "log-list"
        anchors.fill: parent
        anchors.margins: 12
        anchors.rightMargin: 4
        clip: true
        cacheBuffer: 0
        spacing: 4
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        model: drawer.viewModel.logLines
        Accessible.role: Accessible.List
        Accessible.name: drawer.viewModel.strings.text(Labels.AppI18nKey.log)

        Keys.onUpPressed: flick(0, 600)
        Keys.onDownPressed: flick(0, -600)
        onHeightChanged: follower.restart()
        onVisibleChanged: follower.restart()
        Component.onCompleted: follower.restart()

        T.ScrollBar.vertical: DeskScrollBar {}

        Connections {
            target: drawer.viewModel.logLines

            // Not the count: once the log is full, a line goes for each that comes.
            function onRowsInserted() {
                follower.restart();
            }
        }

        // Later, when new lines have their heights.
        Timer {
            id: follower

            interval: 0
            onTriggered: {
                list.positionViewAtEnd(); // by heights that are guessed where lines were out of sight
                list.forceLayout();
                list.positionViewAtEnd();
            }
        }

        delegate: DeskText {
            required property string display

            width: ListView.view.width - 16
            text: display
            color: Design.slate
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
            font.family: Surroundings.fixedFamily
            font.pixelSize: 12
        }
    }
}
