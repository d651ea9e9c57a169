import QtQuick
import Tavelo.Views

// A text in the application's face. What does not fit ends in an ellipsis. It is no label of the templates: those take
// their face from the window, which the first frame would wait for.
Text {
    /// Asked for before the text is complete. Layouts ask only then, and it would be laid out a second time for them.
    readonly property real naturalWidth: implicitWidth

    color: Design.text
    font.pixelSize: 13
    elide: Text.ElideRight
    textFormat: Text.PlainText
    verticalAlignment: Text.AlignVCenter
}
