pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// Offers languages in a menu.
T.ComboBox {
    id: picker

    required property list<string> names
    required property int chosen

    implicitHeight: 34
    leftPadding: 12
    rightPadding: 32
    model: names
    currentIndex: chosen
    focusPolicy: Qt.StrongFocus

    /// Another entry than the one that was.
    signal otherChosen(int index)

    function isReturn(event: KeyEvent): bool {
        return event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
    }

    function press() {
        if (!popup.visible) {
            popup.open();
            return;
        }
        picker.activated(picker.highlightedIndex);
        popup.close();
    }

    onActivated: index => {
        if (index !== chosen)
            otherChosen(index);
    }
    Keys.onPressed: event => {
        event.accepted = isReturn(event);
        if (event.accepted && !event.isAutoRepeat)
            press();
    }
    // The template would close at the release what the press has opened.
    Keys.onReleased: event => event.accepted = isReturn(event)

    Accessible.description: displayText

    contentItem: DeskText {
        text: picker.displayText
        Accessible.ignored: true
    }
    indicator: SymbolIcon {
        x: picker.width - width - 10
        y: (picker.height - height) / 2
        symbol: "chevron.up.chevron.down"
        size: 13
        color: Design.mutedText
    }
    background: Rectangle {
        radius: Design.radius
        color: picker.hovered ? Design.iconFrame : Design.card
        border.color: Design.border

        FocusRing {
            visible: picker.visualFocus
        }
    }
    delegate: T.ItemDelegate {
        id: entry

        required property int index
        required property string modelData

        width: picker.width - 8
        height: 32
        leftPadding: 8
        highlighted: picker.highlightedIndex === index
        text: modelData

        contentItem: DeskText {
            text: entry.text
            color: entry.highlighted ? "white" : Design.text
            font.weight: picker.currentIndex === entry.index ? Font.DemiBold : Font.Normal
            Accessible.ignored: true
        }
        background: Rectangle {
            radius: 6
            color: entry.highlighted ? Design.primary : "transparent"
        }
    }
    popup: T.Popup {
        y: picker.height + 4
        width: picker.width
        implicitHeight: contentItem.implicitHeight + 8
        padding: 4

        contentItem: ListView {
            implicitHeight: contentHeight
            model: picker.delegateModel
            currentIndex: picker.highlightedIndex
            boundsBehavior: Flickable.StopAtBounds
        }
        background: Rectangle {
            radius: Design.radius
            color: Design.card
            border.color: Design.border

            SoftShadow {}
        }
    }
}
