import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The items of a group, below what there is to say of them all.
ColumnLayout {
    id: catalog

    required property DeskrigViewModel viewModel

    spacing: 0 // each has its own gap above it, as those that come and go take theirs along

    HeaderView {
        viewModel: catalog.viewModel
        Layout.fillWidth: true
        Layout.topMargin: 24
        Layout.leftMargin: 28
        Layout.rightMargin: 28
    }
    Reveal {
        shown: catalog.viewModel.updateRequired
        view: "ForceUpdateBanner.qml"
        viewModel: catalog.viewModel
        gap: 12
        Layout.fillWidth: true
    }
    Reveal {
        shown: catalog.viewModel.showOperationProgress
        view: "OperationProgressBanner.qml"
        viewModel: catalog.viewModel
        gap: 12
        Layout.fillWidth: true
    }
    ItemList {
        objectName: "item-list"
        viewModel: catalog.viewModel
        focus: true
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.topMargin: 12
    }
    Lazily {
        needed: catalog.viewModel.showLogDrawer
        view: "LogDrawerView.qml"
        viewModel: catalog.viewModel
        Layout.fillWidth: true
        Layout.leftMargin: 28
        Layout.rightMargin: 28
        Layout.topMargin: 12
        Layout.bottomMargin: 12
    }
}
