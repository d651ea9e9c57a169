import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A group of the cloud's tools.
Card {
    id: card

    property string title: ""

    DeskText {
        text: card.title
        font.weight: Font.Bold
        Layout.fillWidth: true
    }
}
