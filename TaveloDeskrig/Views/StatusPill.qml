import QtQuick
import Tavelo.Views

// How an item stands.
Pill {
    required property string status

    implicitWidth: 104
    implicitHeight: 32
    horizontalPadding: 2
    fontSizeMode: Text.Fit
    elide: Text.ElideNone
    tone: Tones.status(status)
    font.pixelSize: 12
    font.weight: Font.Bold
}
