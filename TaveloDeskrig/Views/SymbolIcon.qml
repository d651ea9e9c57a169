import QtQuick
import Tavelo.Views

// A system symbol by its name, as large as beside a text of that size.
Text {
    property string symbol: ""
    property real size: 13

    text: Symbols.glyph(symbol)
    color: Design.text
    font.family: Symbols.family
    font.pixelSize: Math.round(1.2 * size) // the font leaves a sixth of its square empty
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.ignored: true
}
