import QtQuick
import Tavelo.Views

// Asks before an item is removed.
DeskDialog {
    id: prompt

    required property DeskrigViewModel viewModel
    property string message: ""

    visible: viewModel.removePromptShown
    onAboutToShow: message = viewModel.removePromptMessage

    contentItem: Question {
        title: prompt.viewModel.strings.text(Labels.AppI18nKey.removePromptTitle)
        message: prompt.message
        cancelText: prompt.viewModel.strings.text(Labels.AppI18nKey.cancel)
        confirmText: prompt.viewModel.strings.text(Labels.AppI18nKey.remove)
        buttonPrefix: "remove"
        onCancelled: prompt.viewModel.cancelUninstall()
        onConfirmed: prompt.viewModel.confirmPendingUninstall()
    }
}
