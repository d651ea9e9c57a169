import QtQuick
import QtQuick.Dialogs
import Tavelo.Views

// Asks where the PDF goes.
Item {
    id: panel

    required property DeskrigViewModel viewModel

    Connections {
        target: panel.viewModel

        function onSavePanelShownChanged() {
            if (!panel.viewModel.savePanelShown)
                return;
            dialog.selectedFile = panel.viewModel.savePanelFile;
            dialog.open();
        }
    }
    FileDialog {
        id: dialog

        objectName: "save-panel"
        title: panel.viewModel.strings.screenText(Screens.ScreenText.exportPDF)
        fileMode: FileDialog.SaveFile
        nameFilters: ["PDF (*.pdf)"]
        defaultSuffix: "pdf"
        onAccepted: panel.viewModel.exportReportPDF(selectedFile)
        onRejected: panel.viewModel.cancelReportPDFExport()
    }
}
