pragma ComponentBehavior: Bound

import QtQuick
import Tavelo.Views

// A shadow of plain rectangles, which every renderer draws.
Item {
    id: shadow

    property real cornerRadius: Design.radius
    property int reach: 8

    anchors.fill: parent
    z: -1

    Repeater {
        model: shadow.reach

        Rectangle {
            required property int index

            anchors.fill: parent
            anchors.margins: -index
            anchors.topMargin: 2 - index
            anchors.bottomMargin: -2 - index
            radius: shadow.cornerRadius + index
            color: "#03000000"
        }
    }
}
