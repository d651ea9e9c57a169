import QtQuick
import Tavelo.Views

// Starts something from the sidebar.
DeskButton {
    enum Variant {
        Primary,
        Outline
    }
    property int variant: ActionButton.Variant.Outline

    implicitHeight: 38
    leading: true
    spacing: 10
    symbolWidth: 20
    foreground: "white"
    fill: variant === ActionButton.Variant.Primary ? Design.primary : "transparent"
    hoverFill: variant === ActionButton.Variant.Primary ? Qt.lighter(Design.primary, 1.08) : "#14ffffff"
    pressedFill: variant === ActionButton.Variant.Primary ? Qt.darker(Design.primary, 1.08) : "#24ffffff"
    borderColor: variant === ActionButton.Variant.Primary ? "transparent" : "#8cffffff"
    ringColor: Design.sidebarAction
    font.pixelSize: 13
}
