import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
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
    ListView {
        id: list

        objectName: "report-list"
        clip: true
        focus: true
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 0
        reuseItems: true
        // The form has the keyboard; no row ever takes it.
        keyNavigationEnabled: false
        currentIndex: -1
        model: sheet.viewModel.reportApplications
        Layout.fillWidth: true
        Layout.fillHeight: true

        T.ScrollBar.vertical: DeskScrollBar {}

        function scrollTo(y: real) {
            contentY = Math.max(originY, Math.min(y, originY + contentHeight - height));
        }
        function reveal(item: Item) {
            const top = item.mapToItem(contentItem, 0, 0).y - 12;
            const bottom = top + item.height + 24;
            if (top < contentY)
                scrollTo(top);
            else if (bottom > contentY + height)
                scrollTo(bottom - height);
        }
        function turnPage(direction: int) {
            scrollTo(contentY + direction * (height - 34));
        }

        // A list of Qt 6.4 makes no bound header, and one that is not bound is held to be unqualified.
        // qmllint disable unqualified
        header: ReportParts {
            viewModel: sheet.viewModel
            focus: true
            width: list.width - 10
            z: 2
        }
        // qmllint enable unqualified
        delegate: ReportApplicationRow {
            width: ListView.view.width - 10
        }
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
