import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// One application of the inventory.
Item {
    id: row

    required property string name
    required property string applicationDescription
    required property string signatureState
    required property string signatureText
    required property string licenseState
    required property string licenseText

    required property appStrings strings
    property bool isCurrent: false
    property bool isReachable: false

    signal chosen
    signal detail

    implicitHeight: content.implicitHeight + 20
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: applicationDescription + ", " + signatureText + ", " + licenseText
    Accessible.focusable: true
    Accessible.focused: isCurrent

    TapHandler {
        onTapped: row.chosen()
    }
    Rectangle {
        anchors.fill: parent
        anchors.margins: 2
        radius: 6
        color: "transparent"
        border.width: 2
        border.color: Design.focusRing
        visible: row.isCurrent
    }
    RowLayout {
        id: content

        anchors.fill: parent
        anchors.leftMargin: 14
        anchors.rightMargin: 14
        anchors.topMargin: 10
        anchors.bottomMargin: 10
        spacing: 8

        SymbolIcon {
            symbol: "line.3.horizontal"
            size: 14
            color: "#344054"
            Layout.preferredWidth: 18
        }
        ColumnLayout {
            spacing: 3
            Layout.fillWidth: true

            DeskText {
                text: row.name
                color: "#243247"
                font.weight: Font.DemiBold
                Layout.fillWidth: true
            }
            DeskText {
                text: row.applicationDescription
                color: Design.mutedText
                font.pixelSize: 11
                Layout.fillWidth: true
            }
        }
        AuditEvidencePill {
            evidence: row.signatureState
            status: row.signatureText
            strings: row.strings
            Layout.minimumWidth: 150
            Layout.maximumWidth: 150
        }
        LicenseEvidencePill {
            evidence: row.licenseState
            text: row.licenseText
            strings: row.strings
            Layout.minimumWidth: 210
            Layout.maximumWidth: 210
        }
        AuditDetailButtonStyle {
            text: row.strings.text(Labels.AppI18nKey.detailHelp)
            leftPadding: 6
            rightPadding: 6
            activeFocusOnTab: row.isReachable
            Accessible.name: "%1: %2".arg(text).arg(row.name)
            Layout.preferredWidth: 84
            onClicked: row.detail()
        }
    }
    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 1
        color: "#e1e7ef"
    }
}
