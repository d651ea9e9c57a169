pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// What the cloud can do for this Mac and its shop.
SheetView {
    id: sheet

    readonly property appStrings strings: viewModel.strings

    implicitWidth: 680
    spacing: 12
    Accessible.name: header.title
    onAccepted: dismissed()

    SheetHeader {
        id: header

        title: sheet.strings.text(Labels.AppI18nKey.cloudTools)
        symbol: "cloud.fill"
        closeHelp: sheet.strings.text(Labels.AppI18nKey.close)
        Layout.fillWidth: true
        onClosed: sheet.dismissed()
    }
    CloudCard {
        title: sheet.strings.screenText(Screens.ScreenText.catalogAndReport)
        Layout.fillWidth: true

        RowLayout {
            spacing: 10

            PlainButton {
                objectName: "sync-catalog-button"
                text: sheet.strings.text(Labels.AppI18nKey.syncCatalog)
                onClicked: sheet.viewModel.syncCatalog()
            }
            PlainButton {
                objectName: "upload-report-button"
                text: sheet.strings.screenText(Screens.ScreenText.uploadReport)
                onClicked: sheet.viewModel.uploadReport()
            }
        }
    }
    CloudCard {
        title: sheet.strings.screenText(Screens.ScreenText.workspace)
        Layout.fillWidth: true

        RowLayout {
            spacing: 10

            CloudField {
                id: displayName

                label: sheet.strings.screenText(Screens.ScreenText.displayName)
                Layout.fillWidth: true
                onSubmitted: saveBranding.clicked()
            }
            PlainButton {
                id: saveBranding

                objectName: "save-branding-button"
                text: sheet.strings.screenText(Screens.ScreenText.saveBranding)
                Layout.alignment: Qt.AlignBottom
                onClicked: sheet.viewModel.saveBranding(displayName.text)
            }
        }
        RowLayout {
            spacing: 10

            CloudField {
                id: profileName

                label: sheet.strings.screenText(Screens.ScreenText.profileName)
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onSubmitted: saveProfile.clicked()
            }
            CloudField {
                id: itemIDs

                label: sheet.strings.screenText(Screens.ScreenText.itemIDs)
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onSubmitted: saveProfile.clicked()
            }
            PlainButton {
                id: saveProfile

                objectName: "save-profile-button"
                text: sheet.strings.screenText(Screens.ScreenText.saveProfile)
                Layout.alignment: Qt.AlignBottom
                onClicked: sheet.viewModel.saveTechnicianProfile(profileName.text, itemIDs.text)
            }
        }
        PlainButton {
            objectName: "sync-workspace-button"
            text: sheet.strings.screenText(Screens.ScreenText.syncWorkspace)
            onClicked: sheet.viewModel.syncTechnicianWorkspace()
        }
    }
    CloudCard {
        title: sheet.strings.screenText(Screens.ScreenText.device)
        Layout.fillWidth: true

        RowLayout {
            spacing: 10

            CloudField {
                id: department

                objectName: "department-field"
                label: sheet.strings.screenText(Screens.ScreenText.department)
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onSubmitted: saveDevice.clicked()
            }
            CloudField {
                id: assetCode

                label: sheet.strings.screenText(Screens.ScreenText.assetCode)
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onSubmitted: saveDevice.clicked()
            }
        }
        RowLayout {
            spacing: 10

            PlainButton {
                objectName: "fetch-configuration-button"
                text: sheet.strings.screenText(Screens.ScreenText.fetchConfiguration)
                onClicked: sheet.viewModel.businessDeviceConfig("fetch", "", "")
            }
            PlainButton {
                id: saveDevice

                objectName: "save-device-button"
                text: sheet.strings.screenText(Screens.ScreenText.saveDeviceFields)
                onClicked: sheet.viewModel.businessDeviceConfig("update", department.text, assetCode.text)
            }
        }
    }
    CloudOutput {
        objectName: "cloud-output"
        label: header.title
        text: sheet.viewModel.cloudOutput
        Layout.fillWidth: true
    }
    DefaultButton {
        objectName: "cloud-close-button"
        text: sheet.strings.text(Labels.AppI18nKey.close)
        focus: true
        Layout.alignment: Qt.AlignRight
        onClicked: sheet.dismissed()
    }
}
