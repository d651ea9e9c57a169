import QtQuick
import Tavelo.Views

// An application's licence evidence in the report's table.
Pill {
    required property string evidence

    tone: Tones.licence(evidence)
    horizontalPadding: 6
    implicitHeight: 18
    radius: 9
    textScale: 0.5
    font.pixelSize: 17
}
