import QtQuick
import Tavelo.Views

// The title of a column.
DeskText {
    color: Design.mutedText
    font.pixelSize: 11
    font.weight: Font.Bold
}
