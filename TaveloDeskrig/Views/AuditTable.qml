pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tavelo.Views

// The records, one row an application. The arrow keys choose one, Return shows its evidence.
Rectangle {
    id: table

    required property DeskrigViewModel viewModel

    radius: Design.radius
    color: Design.card
    border.color: Design.border

    onVisibleChanged: list.currentIndex = 0

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 1
        spacing: 0

        RowLayout {
            spacing: 8
            Layout.leftMargin: 14
            Layout.rightMargin: 14
            Layout.preferredHeight: 34

            TableTitle {
                text: table.viewModel.strings.screenText(Screens.ScreenText.nameColumn)
                Layout.fillWidth: true
                Layout.leftMargin: 26
            }
            TableTitle {
                text: table.viewModel.strings.auditSignatureLabel()
                Layout.minimumWidth: 150
                Layout.maximumWidth: 150
            }
            TableTitle {
                text: table.viewModel.strings.auditLicenseLabel()
                Layout.minimumWidth: 210
                Layout.maximumWidth: 210
            }
            Item {
                Layout.preferredWidth: 84
            }
        }
        Rectangle {
            color: "#e1e7ef"
            Layout.fillWidth: true
            Layout.preferredHeight: 1
        }
        ListView {
            id: list

            objectName: "audit-list"
            clip: true
            focus: true
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: true
            keyNavigationEnabled: true
            highlightMoveDuration: 0
            cacheBuffer: 0
            reuseItems: true
            model: table.viewModel.reportApplications
            Layout.fillWidth: true
            Layout.fillHeight: true
            Accessible.role: Accessible.List
            Accessible.name: table.viewModel.strings.text(Labels.AppI18nKey.macInventory)

            Keys.onReturnPressed: event => showCurrent(event)
            Keys.onEnterPressed: event => showCurrent(event)
            Keys.onPressed: event => {
                const page = Math.max(1, Math.floor(height / 60));
                const row = event.key === Qt.Key_Home ? 0 : event.key === Qt.Key_End ? count - 1 : event.key === Qt.Key_PageUp ? currentIndex - page : event.key === Qt.Key_PageDown ? currentIndex + page : -1;
                event.accepted = [Qt.Key_Home, Qt.Key_End, Qt.Key_PageUp, Qt.Key_PageDown].includes(event.key);
                if (event.accepted)
                    currentIndex = Math.max(0, Math.min(row, count - 1));
            }

            function showCurrent(event: KeyEvent) {
                if (!event.isAutoRepeat)
                    table.viewModel.showApplication(currentIndex);
            }

            Connections {
                target: list.model

                // Another inventory may be shorter.
                function onModelReset() {
                    list.currentIndex = Math.max(0, Math.min(list.currentIndex, list.count - 1));
                }
            }

            T.ScrollBar.vertical: DeskScrollBar {}

            delegate: AuditApplicationRow {
                required property int index

                width: ListView.view.width
                strings: table.viewModel.strings
                isCurrent: list.activeFocus && ListView.isCurrentItem
                isReachable: ListView.isCurrentItem
                onChosen: {
                    list.currentIndex = index;
                    list.forceActiveFocus();
                }
                onDetail: table.viewModel.showApplication(index)
            }
        }
    }
}
