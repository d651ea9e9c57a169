import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// What all buttons have in common: looks for the pointer, the press, the keyboard and for being disabled; Return works
// as Space does.
T.Button {
    id: control

    property string symbol: ""
    property real symbolSize: 13
    property real symbolWidth: -1 // the symbol's own
    property color foreground: Design.text
    property color symbolColor: foreground
    property color fill: "transparent"
    property color hoverFill: Qt.darker(fill, 1.06)
    property color pressedFill: Qt.darker(fill, 1.12)
    property color borderColor: "transparent"
    property color ringColor: Design.focusRing
    property bool leading: false
    property string help: ""
    readonly property bool needsExtras: visualFocus || hovered && help !== ""

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 34
    leftPadding: 12
    rightPadding: 12
    spacing: 8
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.55
    font.pixelSize: 12
    font.weight: Font.DemiBold
    Accessible.name: text
    Accessible.description: help
    Accessible.onPressAction: {
        if (enabled)
            clicked();
    }

    function press(event: KeyEvent) {
        if (!event.isAutoRepeat)
            control.clicked();
    }

    onNeedsExtrasChanged: {
        if (needsExtras && extras.status === Loader.Null)
            extras.setSource("ButtonExtras.qml", {
                "button": control
            });
    }

    Keys.onReturnPressed: event => press(event)
    Keys.onEnterPressed: event => press(event)

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
    Loader {
        id: extras
    }

    contentItem: ButtonContent {
        symbol: control.symbol
        symbolSize: control.symbolSize
        symbolWidth: control.symbolWidth
        symbolColor: control.symbolColor
        text: control.text
        font: control.font
        foreground: control.foreground
        leading: control.leading
        spacing: control.spacing
    }

    background: Rectangle {
        radius: Design.radius
        color: control.down ? control.pressedFill : control.hovered ? control.hoverFill : control.fill
        border.width: 1
        border.color: control.borderColor
    }
}
