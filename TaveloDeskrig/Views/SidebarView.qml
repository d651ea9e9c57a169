pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// Where one goes, and what one starts.
FocusScope {
    id: sidebar

    required property DeskrigViewModel viewModel

    function moveFocus(forward: bool) {
        const item = Window.activeFocusItem.nextItemInFocusChain(forward);
        item.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    function isWithin(item: Item, outer: Item): bool {
        while (item && item !== outer)
            item = item.parent;
        return item === outer;
    }

    implicitWidth: 280
    Layout.minimumWidth: 280
    Layout.maximumWidth: 280
    Accessible.role: Accessible.Pane
    Accessible.name: "Tavelo Deskrig"

    Keys.onDownPressed: moveFocus(true)
    Keys.onUpPressed: moveFocus(false)

    Rectangle {
        anchors.fill: parent
        color: Design.sidebar
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 14
        anchors.topMargin: 18
        spacing: 8

        Flickable {
            id: flickable

            readonly property Item focused: Window.activeFocusItem

            // What the keyboard reaches comes into sight.
            onFocusedChanged: {
                if (!Surroundings.byKeyboard || !sidebar.isWithin(focused, entries))
                    return;
                const top = focused.mapToItem(entries, 0, 0).y;
                contentY = Math.max(Math.min(contentY, top), top + focused.height + 8 - height);
            }

            clip: true
            contentHeight: entries.height + 8
            boundsBehavior: Flickable.StopAtBounds
            Layout.fillWidth: true
            Layout.fillHeight: true
            // The ring of the entry that has the focus reaches a little beyond it.
            Layout.margins: -4

            ColumnLayout {
                id: entries

                x: 4
                y: 4
                // As wide as the flickable is to be, which has no width before the first layout: all texts would be laid
                // out for that as well.
                width: sidebar.width - 28
                spacing: 2

                SidebarHeaderView {
                    strings: sidebar.viewModel.strings
                    Layout.fillWidth: true
                    Layout.minimumHeight: 54 // of two lines, so that the entries stay where they are in each language
                    Layout.bottomMargin: 8
                }
                Repeater {
                    model: sidebar.viewModel.groups

                    SidebarNavLabel {
                        focus: index === 0
                        selected: groupID === sidebar.viewModel.selectedGroupID
                        Layout.fillWidth: true
                        onActivated: sidebar.viewModel.selectGroup(groupID)
                    }
                }
                AuditSidebarButton {
                    objectName: "audit-sidebar-button"
                    title: sidebar.viewModel.strings.text(Labels.AppI18nKey.macInventory)
                    selected: sidebar.viewModel.selectedGroupID === "audit"
                    Layout.fillWidth: true
                    onActivated: sidebar.viewModel.openAuditWorkspace()
                }
                ColumnLayout {
                    spacing: 6
                    Layout.topMargin: 8

                    ActionButton {
                        objectName: "install-standard-button"
                        text: sidebar.viewModel.strings.text(Labels.AppI18nKey.installStandard)
                        symbol: "arrow.down.to.line"
                        variant: ActionButton.Variant.Primary
                        enabled: sidebar.viewModel.presetsAllowed
                        Layout.fillWidth: true
                        onClicked: sidebar.viewModel.installStandard()
                    }
                    ActionButton {
                        objectName: "install-full-button"
                        text: sidebar.viewModel.strings.text(Labels.AppI18nKey.installFull)
                        symbol: "shippingbox"
                        enabled: sidebar.viewModel.presetsAllowed
                        Layout.fillWidth: true
                        onClicked: sidebar.viewModel.installFull()
                    }
                    ActionButton {
                        objectName: "system-check-button"
                        text: sidebar.viewModel.strings.text(Labels.AppI18nKey.systemCheck)
                        symbol: "info.circle"
                        Layout.fillWidth: true
                        onClicked: sidebar.viewModel.openSheet(Sheets.SheetKind.systemChecks)
                    }
                    ActionButton {
                        objectName: "report-button"
                        text: sidebar.viewModel.strings.text(Labels.AppI18nKey.openReport)
                        symbol: "doc.text"
                        Layout.fillWidth: true
                        onClicked: sidebar.viewModel.openReport()
                    }
                    ActionButton {
                        objectName: "cloud-tools-button"
                        text: sidebar.viewModel.strings.text(Labels.AppI18nKey.cloudTools)
                        symbol: "checkmark.seal"
                        Layout.fillWidth: true
                        onClicked: sidebar.viewModel.openSheet(Sheets.SheetKind.cloudTools)
                    }
                }
            }

            ClippedEdge {
                flickable: flickable
                atTop: true
            }
            ClippedEdge {
                flickable: flickable
                atTop: false
            }
        }
        SystemSummaryCard {
            viewModel: sidebar.viewModel
            Layout.fillWidth: true
        }
        SettingsEntryView {
            objectName: "settings-button"
            text: sidebar.viewModel.strings.text(Labels.AppI18nKey.settings)
            Layout.fillWidth: true
            onClicked: sidebar.viewModel.openSheet(Sheets.SheetKind.settings)
        }
    }
}
