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

    Keys.onReturnPressed: popup.visible ? picker.accept() : popup.open()

    function accept() {
        picker.currentIndex = picker.highlightedIndex;
        picker.activated(picker.currentIndex);
        popup.close();
    }

    contentItem: DeskText {
        text: picker.displayText
        Accessible.ignored: true
    }
    indicator: SymbolIcon {
        x: picker.width - width - 10
        y: (picker.height - height) / 2
        symbol: "chevron.up.chevron.down"
        size: 16
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
