pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// One item: what it is, how it stands, and what can be done about it.
Rectangle {
    id: row

    required property string itemID
    required property string name
    required property string description
    required property string symbol
    required property list<string> groupIDs
    required property list<string> groupLabels
    required property string source
    required property string packages
    required property string status
    required property string statusText
    required property string primaryActionLabel
    required property bool canRemove
    required property bool isAtWork
    required property double itemProgress
    required property string itemProgressText

    required property appStrings strings
    required property bool isGlobalBusy
    /// The keyboard is in use, and at this row of the list.
    property bool isCurrent: false
    /// The row's buttons are among those that Tab reaches.
    property bool isReachable: false

    signal chosen
    signal install
    signal remove
    signal detail

    /// What the main button does, where it may.
    function act() {
        if (installButton.enabled)
            install();
    }

    function askToRemove() {
        if (removeButton.enabled)
            remove();
    }

    function makeProgress() {
        if (isAtWork && progress.status === Loader.Null)
            progress.setSource("ItemProgress.qml", {
                "row": row
            });
    }

    onIsAtWorkChanged: makeProgress()
    Component.onCompleted: makeProgress()

    implicitHeight: column.implicitHeight + 20
    radius: Design.radius
    color: Design.card
    border.color: Design.border
    Accessible.role: Accessible.ListItem
    Accessible.name: row.name
    Accessible.description: row.statusText
    Accessible.focusable: true
    Accessible.focused: isCurrent

    FocusRing {
        visible: row.isCurrent
    }
    TapHandler {
        onTapped: row.chosen()
    }
    // The buttons leave the focus to the row at a press, so that it stays there when they become disabled.

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.leftMargin: 14
        anchors.rightMargin: 14
        anchors.topMargin: 10
        anchors.bottomMargin: 10
        spacing: 8

        RowLayout {
            spacing: 12

            Rectangle {
                radius: Design.radius
                color: Design.iconFrame
                border.color: Design.iconFrameBorder
                Layout.preferredWidth: 66
                Layout.preferredHeight: 66

                SymbolIcon {
                    anchors.centerIn: parent
                    symbol: row.symbol
                    size: 23
                    color: Design.symbolText
                }
            }
            ColumnLayout {
                spacing: 6

                DeskText {
                    text: row.name
                    color: Design.strongText
                    font.pixelSize: 16
                    font.weight: Font.Bold
                    Layout.fillWidth: true
                }
                WrappedText {
                    text: row.description
                    color: Design.softText
                    maximumLineCount: 2
                    Layout.fillWidth: true
                }
                PillRow {
                    groupIDs: row.groupIDs
                    groupLabels: row.groupLabels
                    source: row.source
                    packages: row.packages
                    Layout.fillWidth: true
                }
            }
            ColumnLayout {
                spacing: 8
                Layout.minimumWidth: 248
                Layout.maximumWidth: 248

                StatusPill {
                    objectName: "status-" + row.itemID
                    status: row.status
                    text: row.statusText
                    Layout.alignment: Qt.AlignRight
                }
                RowLayout {
                    spacing: 8
                    Layout.alignment: Qt.AlignRight

                    InstallButtonStyle {
                        id: installButton

                        objectName: "install-" + row.itemID
                        text: row.primaryActionLabel
                        enabled: !row.isGlobalBusy && row.status !== "working"
                        focusPolicy: row.isReachable ? Qt.TabFocus : Qt.NoFocus
                        Accessible.name: "%1: %2".arg(text).arg(row.name)
                        Layout.preferredWidth: 92
                        onPressed: row.chosen()
                        onClicked: row.install()
                    }
                    IconButton {
                        id: removeButton

                        objectName: "remove-" + row.itemID
                        symbol: "trash"
                        help: row.strings.text(Labels.AppI18nKey.removeHelp)
                        enabled: row.canRemove && !row.isGlobalBusy
                        focusPolicy: row.isReachable ? Qt.TabFocus : Qt.NoFocus
                        Accessible.name: "%1: %2".arg(help).arg(row.name)
                        onPressed: row.chosen()
                        onClicked: row.remove()
                    }
                    IconButton {
                        objectName: "detail-" + row.itemID
                        symbol: "line.3.horizontal"
                        help: row.strings.text(Labels.AppI18nKey.detailHelp)
                        focusPolicy: row.isReachable ? Qt.TabFocus : Qt.NoFocus
                        Accessible.name: "%1: %2".arg(help).arg(row.name)
                        onPressed: row.chosen()
                        onClicked: row.detail()
                    }
                }
            }
        }
        Loader {
            id: progress

            visible: row.isAtWork
            Layout.leftMargin: 78
            Layout.fillWidth: true
        }
    }
}
