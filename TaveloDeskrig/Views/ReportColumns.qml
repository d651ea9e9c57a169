import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A line of the report's table.
RowLayout {
    spacing: 8
}
