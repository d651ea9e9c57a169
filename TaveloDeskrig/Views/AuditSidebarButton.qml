import QtQuick
import Tavelo.Views

// The inventory of this Mac.
SidebarEntry {
    property string title: ""

    text: title
    symbol: "magnifyingglass"
}
