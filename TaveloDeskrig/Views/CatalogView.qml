pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The items of a group, below what there is to say of them all.
ColumnLayout {
    id: catalog

    required property DeskrigViewModel viewModel

    spacing: 12

    HeaderView {
        viewModel: catalog.viewModel
        Layout.fillWidth: true
        Layout.topMargin: 24
        Layout.leftMargin: 28
        Layout.rightMargin: 28
    }
    Reveal {
        shown: catalog.viewModel.updateRequired
        Layout.fillWidth: true

        ForceUpdateBanner {
            objectName: "force-update-banner"
            width: parent.width
            viewModel: catalog.viewModel
        }
    }
    Reveal {
        shown: catalog.viewModel.showOperationProgress
        Layout.fillWidth: true

        OperationProgressBanner {
            objectName: "operation-banner"
            width: parent.width
            viewModel: catalog.viewModel
        }
    }
    ItemList {
        objectName: "item-list"
        viewModel: catalog.viewModel
        focus: true
        Layout.fillWidth: true
        Layout.fillHeight: true
    }
    LogDrawerView {
        objectName: "log-drawer"
        viewModel: catalog.viewModel
        visible: catalog.viewModel.showLogDrawer
        Layout.fillWidth: true
        Layout.leftMargin: 28
        Layout.rightMargin: 28
        Layout.bottomMargin: 12
    }
}
