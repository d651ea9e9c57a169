import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The sidebar, the content above the footer, and what lies over both.
FocusScope {
    id: main

    required property DeskrigViewModel viewModel

    RowLayout {
        anchors.fill: parent
        spacing: 0

        SidebarView {
            viewModel: main.viewModel
            focus: true
            Layout.fillHeight: true
        }
        Rectangle {
            color: Design.border
            Layout.preferredWidth: 1
            Layout.fillHeight: true
        }
        ColumnLayout {
            spacing: 0

            // What is around it is made while its types are still being read.
            Lazily {
                needed: true
                view: "ContentView.qml"
                viewModel: main.viewModel
                Layout.fillWidth: true
                Layout.fillHeight: true
            }
            FooterView {
                viewModel: main.viewModel
                Layout.fillWidth: true
            }
        }
    }

    Lazily {
        needed: main.viewModel.sheetKind !== Sheets.SheetKind.none
        view: "SheetHost.qml"
        viewModel: main.viewModel
    }
    Lazily {
        needed: main.viewModel.removePromptShown
        view: "RemovePrompt.qml"
        viewModel: main.viewModel
    }
    Lazily {
        needed: main.viewModel.toast.isShown
        view: "ToastHost.qml"
        viewModel: main.viewModel
    }
}
