import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// A sheet's frame: Escape dismisses it, Return is its default button.
FocusScope {
    id: sheet

    required property DeskrigViewModel viewModel
    property alias spacing: column.spacing
    default property alias content: column.data
    signal dismissed
    signal accepted

    implicitHeight: column.implicitHeight + 48
    focus: true
    Accessible.role: Accessible.Dialog

    onDismissed: viewModel.dismissSheet()
    Keys.onEscapePressed: dismissed()
    Keys.onReturnPressed: event => accept(event)
    Keys.onEnterPressed: event => accept(event)

    function accept(event: KeyEvent) {
        if (!event.isAutoRepeat)
            accepted();
    }

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: 24
        spacing: 16
    }
}
