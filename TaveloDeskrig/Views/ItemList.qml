pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// The items on screen. The arrow keys choose one, whose buttons Tab then reaches; Return is its main button, and the
// delete key asks to remove it.
ListView {
    id: list

    required property DeskrigViewModel viewModel
    readonly property AppItemRow currentRow: currentItem as AppItemRow

    clip: true
    spacing: 8
    model: viewModel.filteredItems
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 0 // a change of group replaces all rows, and rows half made would be in the way
    activeFocusOnTab: true
    keyNavigationEnabled: true
    highlightMoveDuration: 0
    leftMargin: 28
    rightMargin: 28
    topMargin: 4
    bottomMargin: 12
    Accessible.role: Accessible.List
    Accessible.name: viewModel.shell.headerTitle

    Keys.onReturnPressed: event => act(event)
    Keys.onEnterPressed: event => act(event)
    Keys.onDeletePressed: list.currentRow?.askToRemove()
    Keys.onPressed: event => {
        // What a Mac's keyboard has in the place of Delete.
        event.accepted = event.key === Qt.Key_Backspace;
        if (event.accepted)
            list.currentRow?.askToRemove();
    }

    function act(event: KeyEvent) {
        if (!event.isAutoRepeat)
            list.currentRow?.act();
    }

    Connections {
        target: list.model

        // Other items: the keyboard begins at the first.
        function onModelReset() {
            list.currentIndex = 0;
            list.positionViewAtBeginning();
        }
    }

    T.ScrollBar.vertical: DeskScrollBar {}

    delegate: AppItemRow {
        required property int index

        width: ListView.view.width - 56
        strings: list.viewModel.strings
        isGlobalBusy: list.viewModel.isInstalling
        isCurrent: list.activeFocus && Surroundings.byKeyboard && ListView.isCurrentItem
        isReachable: ListView.isCurrentItem

        onChosen: {
            list.currentIndex = index;
            list.forceActiveFocus(Qt.MouseFocusReason);
        }
        onInstall: list.viewModel.performPrimaryActionOf(itemID)
        onRemove: list.viewModel.askToUninstallItem(itemID)
        onDetail: list.viewModel.showItem(itemID)
    }
}
