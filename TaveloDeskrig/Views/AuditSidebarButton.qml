import QtQuick
import Tavelo.Views

// The inventory of this Mac.
SidebarEntry {
    property string title: ""

    implicitHeight: 40
    text: title
    symbol: "magnifyingglass"
}
