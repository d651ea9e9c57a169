import QtQuick
import Tavelo.Views

// How an item stands.
Pill {
    required property string status

    implicitWidth: 104
    implicitHeight: 32
    horizontalPadding: 3
    fontSizeMode: Text.HorizontalFit
    tone: Tones.status(status)
    font.pixelSize: 12
    font.weight: Font.Bold
}
