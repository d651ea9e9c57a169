import QtQuick
import Tavelo.Views

// A group of the catalog.
SidebarEntry {
    required property int index
    required property string groupID
    required property string label
    required symbol

    objectName: "group-" + groupID
    text: label
}
