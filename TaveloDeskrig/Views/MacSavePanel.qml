import QtQuick
import QtQuick.Dialogs
import Tavelo.Views

// The Mac's own save panel.
Item {
    id: panel

    required property DeskrigViewModel viewModel

    Connections {
        target: panel.viewModel

        function onSavePanelShownChanged() {
            if (panel.viewModel.savePanelShown) {
                dialog.currentFolder = panel.viewModel.savePanelFolder();
                dialog.selectedFile = panel.viewModel.savePanelFile;
                dialog.open();
            } else {
                dialog.close();
            }
        }
    }
    FileDialog {
        id: dialog

        title: panel.viewModel.strings.screenText(Screens.ScreenText.exportPDF)
        fileMode: FileDialog.SaveFile
        acceptLabel: title
        rejectLabel: panel.viewModel.strings.text(Labels.AppI18nKey.cancel)
        nameFilters: ["PDF (*.pdf)"]
        defaultSuffix: "pdf"
        onAccepted: panel.viewModel.exportReportPDF(selectedFile)
        onRejected: panel.viewModel.cancelReportPDFExport()
    }
}
