import QtQuick
import Tavelo.Views

// The button that shows an application's evidence.
PlainButton {
    opacity: down ? 0.78 : 1
    implicitHeight: 30
}
