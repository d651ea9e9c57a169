import QtQuick
import Tavelo.Views

// The screen that the sidebar has chosen.
FocusScope {
    id: content

    required property DeskrigViewModel viewModel
    readonly property bool isAudit: viewModel.selectedGroupID === "audit"

    Rectangle {
        anchors.fill: parent
        color: Design.background
    }
    CatalogView {
        anchors.fill: parent
        visible: !content.isAudit
        viewModel: content.viewModel
    }
    Lazily {
        anchors.fill: parent
        needed: content.isAudit
        focus: needed
        view: "AuditWorkspaceView.qml"
        viewModel: content.viewModel
    }
}
