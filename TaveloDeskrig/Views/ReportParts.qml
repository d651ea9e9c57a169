pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The form of the report, and the head of its table or what stands for it.
FocusScope {
    id: parts

    required property DeskrigViewModel viewModel
    required property real titlesHeight
    readonly property real tableHeight: tableHead.height
    readonly property appStrings strings: viewModel.strings

    implicitHeight: column.implicitHeight

    ColumnLayout {
        id: column

        width: parent.width
        spacing: 12

        RowLayout {
            spacing: 12

            ReportInfoPart {
                title: parts.strings.screenText(Screens.ScreenText.inspector)
                subtitle: parts.strings.screenText(Screens.ScreenText.reportOwner)
                symbol: "person.crop.circle.fill"
                tint: "#2563eb"
                focus: true
                Layout.fillWidth: true

                ReportField {
                    objectName: "inspector-field"
                    label: parts.strings.screenText(Screens.ScreenText.fullName)
                    text: parts.viewModel.reportProfile.inspectorName
                    focus: true
                    Layout.fillWidth: true
                    onEdited: text => parts.viewModel.reportProfile.inspectorName = text
                }
                ReportField {
                    objectName: "team-field"
                    label: parts.strings.screenText(Screens.ScreenText.teamUnit)
                    text: parts.viewModel.reportProfile.team
                    Layout.fillWidth: true
                    onEdited: text => parts.viewModel.reportProfile.team = text
                }
            }
            ReportInfoPart {
                title: parts.strings.screenText(Screens.ScreenText.report)
                subtitle: parts.strings.screenText(Screens.ScreenText.deliveryDetails)
                symbol: "paperplane.fill"
                tint: "#7c3aed"
                Layout.fillWidth: true

                ReportField {
                    objectName: "recipient-field"
                    label: parts.strings.screenText(Screens.ScreenText.recipient)
                    text: parts.viewModel.reportProfile.recipient
                    Layout.fillWidth: true
                    onEdited: text => parts.viewModel.reportProfile.recipient = text
                }
                ReportField {
                    objectName: "subject-field"
                    label: parts.strings.screenText(Screens.ScreenText.subject)
                    text: parts.viewModel.reportProfile.subject
                    Layout.fillWidth: true
                    onEdited: text => parts.viewModel.reportProfile.subject = text
                }
            }
        }
        ReportInfoPart {
            title: parts.strings.screenText(Screens.ScreenText.notesTitle)
            subtitle: parts.strings.screenText(Screens.ScreenText.notesSubtitle)
            symbol: "note.text"
            tint: "#c2410c"
            Layout.fillWidth: true

            ReportNotes {
                objectName: "notes-field"
                label: parts.strings.screenText(Screens.ScreenText.notesTitle)
                text: parts.viewModel.reportProfile.notes
                Layout.fillWidth: true
                onEdited: text => parts.viewModel.reportProfile.notes = text
            }
            WrappedText {
                text: parts.strings.screenText(Screens.ScreenText.notesNotice)
                color: Design.mutedText
                font.pixelSize: 11
                Layout.fillWidth: true
            }
        }
        ReportTableHead {
            id: tableHead

            visible: parts.viewModel.hasReportSnapshot
            strings: parts.strings
            titlesHeight: parts.titlesHeight
            Layout.fillWidth: true
        }
        EmptyState {
            visible: !parts.viewModel.hasReportSnapshot
            symbol: "magnifyingglass.circle"
            title: parts.strings.screenText(Screens.ScreenText.noScanTitle)
            titleSize: 16
            detail: parts.strings.screenText(Screens.ScreenText.noScanDetail)
            buttonName: "scan-computer-button"
            buttonSymbol: "doc.text.magnifyingglass"
            buttonText: parts.strings.screenText(Screens.ScreenText.scanComputer)
            buttonEnabled: !parts.viewModel.isReportRefreshing
            Layout.fillWidth: true
            onStarted: parts.viewModel.scanMac()
        }
    }
}
