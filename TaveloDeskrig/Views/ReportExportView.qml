import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// What the report will say, who makes it for whom, and its export.
SheetView {
    id: sheet

    readonly property Item focusedItem: Window.activeFocusItem

    implicitWidth: 1040
    implicitHeight: Math.max(704, Math.min(Window.height - 80, 1000))
    spacing: 12
    Accessible.name: header.title
    onAccepted: viewModel.startReportPDFExport()
    Component.onCompleted: list.positionViewAtBeginning()
    Component.onDestruction: viewModel.saveReportProfile()

    // A field that the keyboard comes to is brought into sight.
    onFocusedItemChanged: {
        for (let item = focusedItem; item; item = item.parent) {
            if (item === list.headerItem)
                list.reveal(focusedItem);
        }
    }

    Keys.onPressed: event => {
        if (event.key === Qt.Key_PageDown || event.key === Qt.Key_PageUp) {
            list.turnPage(event.key === Qt.Key_PageDown ? 1 : -1);
            event.accepted = true;
        }
    }

    SheetHeader {
        id: header

        title: sheet.viewModel.strings.reportTitle()
        titleSize: 23
        titleColor: "#172554"
        subtitle: sheet.viewModel.strings.reportDescription()
        subtitleSize: 12
        subtitleColor: "#52627a"
        closeHelp: sheet.viewModel.strings.text(Labels.AppI18nKey.close)
        Layout.fillWidth: true
        onClosed: sheet.dismissed()
    }
    ReportCounters {
        viewModel: sheet.viewModel
        Layout.fillWidth: true
    }
    ReportList {
        id: list

        objectName: "report-list"
        viewModel: sheet.viewModel
        focus: true
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.rightMargin: -14 // the bar stands in the sheet's margin
    }
    RowLayout {
        spacing: 10

        PlainButton {
            objectName: "report-source-button"
            text: sheet.viewModel.strings.screenText(Screens.ScreenText.reportSource)
            symbol: "folder.fill"
            symbolColor: "#7c8da6"
            onClicked: sheet.viewModel.revealReport()
        }
        Item {
            Layout.fillWidth: true
        }
        PlainButton {
            objectName: "report-close-button"
            text: sheet.viewModel.strings.text(Labels.AppI18nKey.close)
            leftPadding: 18
            rightPadding: 18
            onClicked: sheet.dismissed()
        }
        ReportPrimaryButtonStyle {
            objectName: "export-button"
            text: sheet.viewModel.strings.screenText(Screens.ScreenText.exportPDF)
            symbol: "arrow.down.doc.fill"
            leftPadding: 16
            rightPadding: 18
            onClicked: sheet.viewModel.startReportPDFExport()
        }
    }

    SavePanel {
        viewModel: sheet.viewModel
    }
}
