import QtQuick
import Tavelo.Views

// Asks before an item is removed.
DeskDialog {
    id: prompt

    required property DeskrigViewModel viewModel
    property string message: ""

    visible: viewModel.removePromptShown
    onAboutToShow: message = viewModel.removePromptMessage

    contentItem: RemoveQuestion {
        viewModel: prompt.viewModel
        message: prompt.message
    }
}
