pragma ComponentBehavior: Bound

import QtQuick
import Tavelo.Views

// Shows the one sheet that is open. The sheet that closes stays in sight until it is gone.
DeskDialog {
    id: host

    required property DeskrigViewModel viewModel
    readonly property int kind: viewModel.sheetKind
    property int shownKind: Sheets.SheetKind.none

    function componentOf(kind: int): Component {
        switch (kind) {
        case Sheets.SheetKind.itemDetail:
            return itemDetail;
        case Sheets.SheetKind.auditDetail:
            return auditDetail;
        case Sheets.SheetKind.settings:
            return settings;
        case Sheets.SheetKind.systemChecks:
            return systemChecks;
        case Sheets.SheetKind.report:
            return report;
        case Sheets.SheetKind.cloudTools:
            return cloudTools;
        }
        return null;
    }

    visible: kind !== Sheets.SheetKind.none
    onKindChanged: {
        if (kind === Sheets.SheetKind.none)
            return;
        shownKind = Sheets.SheetKind.none; // the same kind again is another sheet
        shownKind = kind;
    }
    onClosed: shownKind = Sheets.SheetKind.none

    contentItem: Loader {
        focus: true
        sourceComponent: host.componentOf(host.shownKind)
    }

    Component {
        id: itemDetail

        ItemDetailView {
            viewModel: host.viewModel
        }
    }
    Component {
        id: auditDetail

        AuditApplicationDetailView {
            viewModel: host.viewModel
        }
    }
    Component {
        id: settings

        SettingsView {
            viewModel: host.viewModel
        }
    }
    Component {
        id: systemChecks

        SystemCheckView {
            viewModel: host.viewModel
        }
    }
    Component {
        id: report

        ReportExportView {
            viewModel: host.viewModel
        }
    }
    Component {
        id: cloudTools

        CloudToolsView {
            viewModel: host.viewModel
        }
    }
}
