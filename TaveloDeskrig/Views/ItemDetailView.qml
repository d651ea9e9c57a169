pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// All there is to know of an item.
SheetView {
    id: sheet

    implicitWidth: 640
    implicitHeight: 400
    spacing: 12
    Accessible.name: viewModel.sheetHead.title
    onAccepted: dismissed()

    RowLayout {
        spacing: 12

        Rectangle {
            radius: Design.radius
            color: Design.primaryTint
            Layout.preferredWidth: 58
            Layout.preferredHeight: 58

            SymbolIcon {
                anchors.centerIn: parent
                symbol: sheet.viewModel.sheetHead.symbol
                size: 26
                color: Design.primary
            }
        }
        SheetHeader {
            title: sheet.viewModel.sheetHead.title
            subtitle: sheet.viewModel.sheetHead.subtitle
            subtitleSize: 12
            closeHelp: sheet.viewModel.strings.text(Labels.AppI18nKey.close)
            Layout.fillWidth: true
            onClosed: sheet.dismissed()

            StatusPill {
                status: sheet.viewModel.sheetHead.status
                text: sheet.viewModel.sheetHead.statusText
            }
        }
    }
    DetailList {
        model: sheet.viewModel.sheetDetails
        spacing: 8
        Accessible.name: sheet.viewModel.sheetHead.title

        delegate: DetailLine {
            width: ListView.view.width - 24
        }
    }
    DefaultButton {
        objectName: "detail-close-button"
        text: sheet.viewModel.strings.text(Labels.AppI18nKey.close)
        focus: true
        Layout.alignment: Qt.AlignRight
        onClicked: sheet.dismissed()
    }
}
