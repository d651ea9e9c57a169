import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// The form of the report, and below it the table, whose titles stay in sight while its rows scroll.
ListView {
    id: list

    required property DeskrigViewModel viewModel
    readonly property ReportParts parts: headerItem as ReportParts
    readonly property real rowsTop: parts ? parts.y + parts.height : 0

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 0
    reuseItems: true
    // The form has the keyboard; no row ever takes it.
    keyNavigationEnabled: false
    currentIndex: -1
    model: viewModel.reportApplications

    T.ScrollBar.vertical: DeskScrollBar {}

    function scrollTo(y: real) {
        contentY = Math.max(originY, Math.min(y, originY + contentHeight - height));
    }
    function reveal(item: Item) {
        const top = item.mapToItem(contentItem, 0, 0).y - 12;
        const bottom = top + item.height + 24;
        if (top < contentY)
            scrollTo(top);
        else if (bottom > contentY + height)
            scrollTo(bottom - height);
    }
    function turnPage(direction: int) {
        scrollTo(contentY + direction * (height - titles.height - 34));
    }

    // A list of Qt 6.4 makes no bound header, and one that is not bound is held to be unqualified.
    // qmllint disable unqualified
    header: ReportParts {
        viewModel: list.viewModel
        titlesHeight: titles.height
        focus: true
        width: list.width - 14
        z: 2
    }
    // qmllint enable unqualified
    delegate: ReportApplicationRow {
        width: ListView.view.width - 14
    }

    Rectangle {
        parent: list.contentItem
        visible: titles.visible
        y: list.rowsTop - (list.parts ? list.parts.tableHeight : 0)
        z: -1
        width: list.width - 14
        height: list.originY + list.contentHeight - y
        radius: Design.radius
        color: Design.card
        border.color: Design.border
    }
    ReportTableTitles {
        id: titles

        objectName: "report-titles"
        visible: list.viewModel.hasReportSnapshot
        strings: list.viewModel.strings
        x: 1
        y: Math.max(0, list.rowsTop - height - list.contentY)
        width: list.width - 16
        color: y > 0 ? "transparent" : Design.card
    }
}
