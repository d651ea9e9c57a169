import QtQuick
import Tavelo.Views

// The usual button on a light ground.
DeskButton {
    fill: Design.card
    hoverFill: Design.iconFrame
    pressedFill: Design.hovered
    borderColor: Design.border
}
