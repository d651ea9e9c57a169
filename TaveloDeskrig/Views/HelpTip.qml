import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// What a button does, above it while the pointer rests there.
T.ToolTip {
    id: tip

    required property DeskButton button

    parent: button
    text: button.help
    visible: button.hovered && text !== ""
    x: (button.width - width) / 2
    y: -height - 4
    z: 20
    margins: 6
    padding: 8
    delay: 700
    implicitWidth: Math.min(320, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    contentItem: WrappedText {
        text: tip.text
        color: "white"
        font.pixelSize: 12
    }
    background: Rectangle {
        radius: 6
        color: Design.text
    }
}
