pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// Whether this Mac is fit for the work. Opening the sheet is what starts the check.
SheetView {
    id: sheet

    implicitWidth: 760
    implicitHeight: 620
    Accessible.name: header.title
    onAccepted: dismissed()
    onDismissed: viewModel.cancelSystemCheck()
    Component.onCompleted: viewModel.refreshChecks(true)

    SheetHeader {
        id: header

        title: sheet.viewModel.strings.text(Labels.AppI18nKey.systemCheck)
        subtitle: sheet.viewModel.strings.systemChecksDescription()
        subtitleSize: 12
        closeHelp: sheet.viewModel.strings.text(Labels.AppI18nKey.close)
        Layout.fillWidth: true
        onClosed: sheet.dismissed()
    }
    DetailList {
        id: list

        objectName: "check-list"
        spacing: 10
        model: sheet.viewModel.latestChecks
        Accessible.name: header.title

        delegate: SystemCheckRow {
            width: ListView.view.width - 24
        }

        DeskText {
            visible: list.count === 0
            width: list.width
            height: 80
            text: sheet.viewModel.strings.text(Labels.AppI18nKey.checkingPrerequisites)
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
        }
    }
    RowLayout {
        spacing: 10

        PlainButton {
            objectName: "open-brew-button"
            text: sheet.viewModel.strings.text(Labels.AppI18nKey.openBrew)
            onClicked: sheet.viewModel.openHomebrewGuide()
        }
        PlainButton {
            objectName: "copy-brew-button"
            text: sheet.viewModel.strings.text(Labels.AppI18nKey.copyBrewCommand)
            onClicked: sheet.viewModel.copyHomebrewInstallCommand()
        }
        Item {
            Layout.fillWidth: true
        }
        DefaultButton {
            objectName: "checks-close-button"
            text: sheet.viewModel.strings.text(Labels.AppI18nKey.close)
            focus: true
            onClicked: sheet.dismissed()
        }
    }
}
