pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// All that is known of an application, and what it is worth.
SheetView {
    id: sheet

    implicitWidth: 680
    implicitHeight: 660
    Accessible.name: viewModel.sheetHead.title
    onAccepted: dismissed()

    SheetHeader {
        title: sheet.viewModel.sheetHead.title
        closeHelp: sheet.viewModel.strings.text(Labels.AppI18nKey.close)
        Layout.fillWidth: true
        onClosed: sheet.dismissed()
    }
    DetailList {
        focus: true
        model: sheet.viewModel.sheetDetails
        Accessible.name: sheet.viewModel.sheetHead.title

        delegate: AuditDetailField {
            width: ListView.view.width - 24
        }
    }
    Notice {
        symbol: "signature"
        text: sheet.viewModel.strings.auditEvidenceNotice()
        foreground: "#155da6"
        fill: "#e8f2fc"
        Layout.fillWidth: true
    }
    Notice {
        symbol: "checkmark.seal.fill"
        text: sheet.viewModel.strings.auditLicenseNotice()
        foreground: "#b54708"
        fill: "#fdf0e3"
        Layout.fillWidth: true
    }
}
