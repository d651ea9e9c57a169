import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// A text in the window's face. What does not fit ends in an ellipsis.
T.Label {
    /// Asked for before the text is complete. Layouts ask only then, and it would be laid out a second time for them.
    readonly property real naturalWidth: implicitWidth

    color: Design.text
    font.pixelSize: 13
    elide: Text.ElideRight
    textFormat: Text.PlainText
    verticalAlignment: Text.AlignVCenter
}
