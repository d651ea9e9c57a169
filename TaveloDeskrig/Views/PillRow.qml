pragma ComponentBehavior: Bound

import QtQuick
import Tavelo.Views

// An item's groups, source and packages. Where the room is short, the source gives way.
Item {
    id: pills

    required property list<string> groupIDs
    required property list<string> groupLabels
    required property string source
    required property string packages

    implicitHeight: packagesPill.implicitHeight

    Row {
        id: groups

        spacing: 8

        Repeater {
            model: pills.groupIDs

            GroupPill {
                required property int index
                required property string modelData

                groupID: modelData
                text: pills.groupLabels[index]
            }
        }
    }
    SourcePill {
        id: sourcePill

        x: groups.width + 8
        width: Math.max(40, Math.min(implicitWidth, pills.width - x - packagesPill.width - 8))
        text: pills.source
    }
    SourcePill {
        id: packagesPill

        x: sourcePill.x + sourcePill.width + 8
        text: pills.packages
    }
}
