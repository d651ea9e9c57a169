import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The program's mark and name.
RowLayout {
    id: header

    required property appStrings strings

    spacing: 12

    TaveloBrandMark {}
    ColumnLayout {
        spacing: 3

        DeskText {
            text: "Tavelo Deskrig"
            color: "white"
            font.pixelSize: 17
            font.weight: Font.Bold
            Layout.fillWidth: true
        }
        WrappedText {
            text: header.strings.text(Labels.AppI18nKey.appSubtitle)
            color: Design.sidebarMuted
            font.pixelSize: 12
            font.weight: Font.Medium
            maximumLineCount: 2
            Layout.fillWidth: true
        }
    }
}
