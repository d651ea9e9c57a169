import QtQuick
import Tavelo.Views

// A system symbol by its name.
Text {
    property string symbol: ""
    property real size: 16

    text: Symbols.glyph(symbol)
    color: Design.text
    font.family: Symbols.family
    font.pixelSize: size
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.ignored: true
}
