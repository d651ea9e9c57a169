import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A file's name and its folder. Return saves, Escape does not; a file that is there already is replaced only when that
// was asked for.
FocusScope {
    id: form

    required property DeskrigViewModel viewModel
    readonly property appStrings strings: viewModel.strings
    readonly property string proposal: String(viewModel.savePanelFile)
    readonly property string fileName: /\.pdf$/i.test(name) ? name : name + ".pdf"
    property string name: proposal.slice(proposal.lastIndexOf("/") + 1)

    implicitWidth: 560
    implicitHeight: 480
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: title.text

    function save() {
        if (!saveButton.enabled || !viewModel.savePanelShown) // answered, and on its way out
            return;
        if (contents.holds(fileName))
            replacePrompt.open();
        else
            write();
    }
    // The key that has asked for the panel may still be down.
    function press(event: KeyEvent) {
        if (!event.isAutoRepeat)
            save();
    }
    function write() {
        viewModel.exportReportPDF(contents.place(fileName));
    }

    Component.onCompleted: field.selectFirst(name.length - ".pdf".length)
    Keys.onEscapePressed: viewModel.cancelReportPDFExport()
    Keys.onReturnPressed: event => press(event)
    Keys.onEnterPressed: event => press(event)

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 24
        spacing: 12

        DeskText {
            id: title

            text: form.strings.screenText(Screens.ScreenText.exportPDF)
            font.pixelSize: 17
            font.weight: Font.Bold
            Layout.fillWidth: true
            Accessible.role: Accessible.Heading
        }
        ReportField {
            id: field

            objectName: "save-name-field"
            label: form.strings.screenText(Screens.ScreenText.fileName)
            text: form.name
            focus: true
            Layout.fillWidth: true
            // A name leads neither to another folder nor to a file out of sight.
            validator: RegularExpressionValidator {
                regularExpression: /[^.\/\s][^\/]*/
            }
            onEdited: text => form.name = text
        }
        RowLayout {
            spacing: 8

            IconButton {
                objectName: "save-up-button"
                symbol: "arrow.up"
                help: form.strings.screenText(Screens.ScreenText.enclosingFolder)
                enabled: !contents.isTop
                onClicked: contents.goUp()
            }
            SymbolIcon {
                symbol: "folder.fill"
                size: 15
                color: Design.mutedText
            }
            DeskText {
                objectName: "save-folder-name"
                text: contents.folderName
                font.weight: Font.DemiBold
                Layout.fillWidth: true
            }
        }
        FolderContents {
            id: contents

            start: form.proposal.slice(0, form.proposal.lastIndexOf("/"))
            topFolder: String(form.viewModel.savePanelTop)
            emptyText: form.strings.screenText(Screens.ScreenText.emptyFolder)
            Layout.fillWidth: true
            Layout.fillHeight: true
            onFileChosen: name => form.name = name
        }
        RowLayout {
            spacing: 10
            Layout.topMargin: 8
            Layout.alignment: Qt.AlignRight

            PlainButton {
                objectName: "save-cancel-button"
                text: form.strings.text(Labels.AppI18nKey.cancel)
                leftPadding: 18
                rightPadding: 18
                onClicked: form.viewModel.cancelReportPDFExport()
            }
            DefaultButton {
                id: saveButton

                objectName: "save-button"
                text: form.strings.screenText(Screens.ScreenText.save)
                enabled: form.name !== "" && contents.isKnown
                onClicked: form.save()
            }
        }
    }

    DeskDialog {
        id: replacePrompt

        contentItem: Question {
            title: form.strings.screenText(Screens.ScreenText.replaceTitle).arg(form.fileName)
            message: form.strings.screenText(Screens.ScreenText.replaceMessage).arg(contents.folderName)
            cancelText: form.strings.text(Labels.AppI18nKey.cancel)
            confirmText: form.strings.screenText(Screens.ScreenText.replace)
            buttonPrefix: "replace"
            onCancelled: replacePrompt.close()
            onConfirmed: {
                replacePrompt.close();
                form.write();
            }
        }
    }
}
