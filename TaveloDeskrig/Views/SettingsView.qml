pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The settings: the language.
SheetView {
    id: sheet

    implicitWidth: 520
    spacing: 20
    Accessible.name: header.title
    onAccepted: dismissed()

    SheetHeader {
        id: header

        title: sheet.viewModel.strings.text(Labels.AppI18nKey.settings)
        subtitle: sheet.viewModel.strings.settingsSubtitle()
        symbol: "gearshape.fill"
        closeHelp: sheet.viewModel.strings.text(Labels.AppI18nKey.close)
        closeName: "settings-close-button"
        Layout.fillWidth: true
        onClosed: sheet.dismissed()
    }
    Card {
        padding: 16
        spacing: 8
        Layout.fillWidth: true

        RowLayout {
            spacing: 8

            SymbolIcon {
                symbol: "globe"
                size: 14
                color: Design.text
            }
            DeskText {
                text: sheet.viewModel.strings.text(Labels.AppI18nKey.language)
                font.pixelSize: 14
                font.weight: Font.Bold
                Layout.fillWidth: true
            }
        }
        WrappedText {
            text: sheet.viewModel.strings.languageSettingDetail()
            color: Design.mutedText
            font.pixelSize: 12
            Layout.fillWidth: true
        }
        LanguagePicker {
            objectName: "language-picker"
            names: sheet.viewModel.languageNames
            chosen: sheet.viewModel.languageIndex
            Accessible.name: sheet.viewModel.strings.text(Labels.AppI18nKey.language)
            Layout.preferredWidth: 260
            Layout.topMargin: 4
            onOtherChosen: index => sheet.viewModel.chooseLanguage(index)
        }
    }
    DefaultButton {
        objectName: "settings-done-button"
        text: sheet.viewModel.strings.text(Labels.AppI18nKey.close)
        focus: true
        Layout.alignment: Qt.AlignRight
        onClicked: sheet.dismissed()
    }
}
