import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// How far the work at an item is.
RowLayout {
    id: progress

    required property AppItemRow row

    spacing: 8

    TaveloProgressBar {
        share: progress.row.itemProgress
        implicitHeight: 6
        Accessible.name: progress.row.name
        Layout.fillWidth: true
    }
    DeskText {
        text: progress.row.itemProgressText
        font.pixelSize: 11
        font.weight: Font.Bold
        horizontalAlignment: Text.AlignRight
        Layout.preferredWidth: 40
    }
}
