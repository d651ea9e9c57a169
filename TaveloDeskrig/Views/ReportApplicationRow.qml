import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// One record of the report's table.
Item {
    id: row

    required property int number
    required property string name
    required property string versionText
    required property string source
    required property string developer
    required property string signatureStatus
    required property string signatureText
    required property string licenseState
    required property string licenseText

    readonly property bool isLast: number === ListView.view.count

    implicitHeight: 34
    Accessible.role: Accessible.ListItem
    Accessible.name: "%1 %2".arg(number).arg(name)
    Accessible.description: "%1, %2".arg(signatureText).arg(licenseText)

    // Within the card's border and its rounded corners.
    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 1
        anchors.rightMargin: 1
        anchors.bottomMargin: row.isLast ? 1 : 0
        radius: row.isLast ? Design.radius - 1 : 0
        color: Design.card
    }
    ReportColumns {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12

        DeskText {
            text: row.number
            color: Design.mutedText
            font.pixelSize: 11
            Layout.preferredWidth: 34
        }
        DeskText {
            text: row.name
            font.pixelSize: 12
            font.weight: Font.DemiBold
            Layout.fillWidth: true
        }
        DeskText {
            text: row.versionText
            color: Design.slate
            font.pixelSize: 11
            Layout.preferredWidth: 84
        }
        DeskText {
            text: row.source
            color: Design.slate
            font.pixelSize: 11
            Layout.preferredWidth: 120
        }
        DeskText {
            text: row.developer
            color: Design.slate
            font.pixelSize: 11
            Layout.preferredWidth: 150
        }
        Item {
            Layout.preferredWidth: 120
            Layout.fillHeight: true

            ReportSignatureBadge {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width)
                status: row.signatureStatus
                text: row.signatureText
            }
        }
        Item {
            Layout.preferredWidth: 190
            Layout.fillHeight: true

            ReportLicenseBadge {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width)
                evidence: row.licenseState
                text: row.licenseText
            }
        }
    }
    Rectangle {
        visible: !row.isLast
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.leftMargin: 1
        anchors.rightMargin: 1
        height: 1
        color: "#e1e7ef"
    }
}
