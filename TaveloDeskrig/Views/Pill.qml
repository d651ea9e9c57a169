import QtQuick
import Tavelo.Views

// A short word in colours of its own.
Rectangle {
    id: pill

    required property string text
    required property tone tone
    property alias font: label.font
    property alias fontSizeMode: label.fontSizeMode
    property alias elide: label.elide
    property real horizontalPadding: 8
    /// Fonts have whole sizes; a size between two is a larger one drawn to scale.
    property real textScale: 1

    implicitWidth: Math.ceil(label.implicitWidth * textScale) + 2 * horizontalPadding
    implicitHeight: 22
    radius: Design.radius
    color: tone.fill
    border.width: 1
    border.color: tone.border

    DeskText {
        id: label

        anchors.centerIn: parent
        width: (parent.width - 2 * pill.horizontalPadding) / scale
        height: parent.height / scale
        scale: pill.textScale
        text: pill.text
        color: pill.tone.text
        horizontalAlignment: Text.AlignHCenter
        minimumPixelSize: 8
        font.pixelSize: 11
        font.weight: Font.DemiBold
    }
}
