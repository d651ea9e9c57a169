pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The software added to this Mac, with its evidence.
FocusScope {
    id: workspace

    required property DeskrigViewModel viewModel

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 28
        spacing: 24

        AuditHeaderView {
            viewModel: workspace.viewModel
            Layout.fillWidth: true
        }
        AuditEmptyStateView {
            visible: !workspace.viewModel.shell.hasApplications
            viewModel: workspace.viewModel
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
        AuditTable {
            visible: workspace.viewModel.shell.hasApplications
            viewModel: workspace.viewModel
            focus: true
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
    }
}
