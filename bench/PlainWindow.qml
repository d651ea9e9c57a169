import QtQuick

// What the first frame is held against: a window of the same size with 28 plain rows.
Window {
    width: 1120
    height: 760
    visible: true

    Column {
        Repeater {
            model: 28

            Rectangle {
                required property int index

                width: 1120
                height: 27
                border.color: "lightgray"

                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    x: 12
                    text: "Row " + parent.index
                }
            }
        }
    }
}
