import QtQuick
import Tavelo.Views

// A button that is a symbol alone; its help is its name.
DeskButton {
    id: button

    implicitWidth: 28
    leftPadding: 0
    rightPadding: 0
    symbolSize: 15
    foreground: Design.symbolText
    hoverFill: Design.hovered
    pressedFill: Design.pressed
    Accessible.name: help
    Accessible.description: ""

    contentItem: SymbolIcon {
        symbol: button.symbol
        size: button.symbolSize
        color: button.symbolColor
    }
}
