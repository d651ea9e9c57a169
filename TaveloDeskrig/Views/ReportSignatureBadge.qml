import QtQuick
import Tavelo.Views

// An application's signature in the report's table.
Pill {
    required property string status

    tone: Tones.signature(status)
    horizontalPadding: 7
    implicitHeight: 18
    radius: 9
    font.pixelSize: 9
}
