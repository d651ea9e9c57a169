import QtQuick
import QtQuick.Layouts

// A line of the report's table.
RowLayout {
    spacing: 8
}
