import QtQuick
import Tavelo.Views

// The button that looks anew.
PlainButton {
    symbol: "arrow.clockwise"
}
