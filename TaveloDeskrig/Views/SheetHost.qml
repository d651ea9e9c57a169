import QtQuick
import Tavelo.Views

// Shows the one sheet that is open. The sheet that closes stays in sight until it is gone.
DeskDialog {
    id: host

    required property DeskrigViewModel viewModel
    readonly property int kind: viewModel.sheetKind

    function sourceOf(kind: int): url {
        switch (kind) {
        case Sheets.SheetKind.itemDetail:
            return "ItemDetailView.qml";
        case Sheets.SheetKind.auditDetail:
            return "AuditApplicationDetailView.qml";
        case Sheets.SheetKind.settings:
            return "SettingsView.qml";
        case Sheets.SheetKind.systemChecks:
            return "SystemCheckView.qml";
        case Sheets.SheetKind.report:
            return "ReportExportView.qml";
        case Sheets.SheetKind.cloudTools:
            return "CloudToolsView.qml";
        }
        return "";
    }

    implicitWidth: loader.implicitWidth
    implicitHeight: loader.implicitHeight
    visible: kind !== Sheets.SheetKind.none
    onKindChanged: take()
    onClosed: loader.source = ""
    Component.onCompleted: {
        if (loader.status === Loader.Null) // the kind may have been told by now
            take();
    }

    // A sheet of the kind that is open already stays: it shows what the view model holds.
    function take() {
        if (kind !== Sheets.SheetKind.none)
            loader.setSource(sourceOf(kind), {
                "viewModel": viewModel
            });
    }

    Loader {
        id: loader

        objectName: "sheet"

        anchors.fill: parent
        focus: true
    }
}
