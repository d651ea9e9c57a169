pragma ComponentBehavior: Bound

import Qt.labs.folderlistmodel
import QtQuick
import QtQuick.Templates as T
import Tavelo.Views

// The folders and PDFs in a folder. The arrow keys choose one; Return or a double click opens a folder and takes a PDF.
Rectangle {
    id: contents

    required property string start
    /// The folder that one cannot leave.
    required property string topFolder
    required property string emptyText
    // Where the entries on screen are. The model decodes what it is given twice.
    readonly property string address: String(entries.folder).replace(/%25/g, "%")
    readonly property string folderName: decodeURIComponent(address).split("/").pop() || "/"
    readonly property bool isTop: withSlash(address) === withSlash(topFolder)
    readonly property bool isKnown: entries.status === FolderListModel.Ready
    signal fileChosen(string name)

    radius: Design.radius
    color: Design.card
    border.width: list.activeFocus ? 2 : 1
    border.color: list.activeFocus ? Design.focusRing : Design.border

    function twiceEncoded(address: string): string {
        return address.replace(/%/g, "%25");
    }
    function withSlash(address: string): string {
        return decodeURIComponent(address).replace(/\/?$/, "/");
    }
    function show(address: string) {
        entries.folder = twiceEncoded(address);
    }
    function goUp() {
        show(address.slice(0, Math.max(address.lastIndexOf("/"), "file:///".length)));
    }
    function place(fileName: string): url {
        return address.replace(/\/?$/, "/") + encodeURIComponent(fileName);
    }
    function holds(fileName: string): bool {
        const index = entries.indexOf(place(fileName));
        return index >= 0 && !entries.isFolder(index);
    }

    FolderListModel {
        id: entries

        folder: contents.twiceEncoded(contents.start)
        nameFilters: ["*.pdf"]
        caseSensitive: false
        sortCaseSensitive: false
        showDirsFirst: true
        onFolderChanged: list.currentIndex = 0
    }
    ListView {
        id: list

        objectName: "save-list"
        anchors.fill: parent
        anchors.margins: 4
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        keyNavigationEnabled: true
        highlightMoveDuration: 0
        cacheBuffer: 0
        model: entries
        Accessible.role: Accessible.List
        Accessible.name: contents.folderName

        function open(index: int) {
            if (index < 0 || index >= count)
                return;
            if (entries.isFolder(index))
                contents.show(String(entries.get(index, "fileUrl")));
            else
                contents.fileChosen(entries.get(index, "fileName"));
        }

        function openCurrent(event: KeyEvent) {
            if (!event.isAutoRepeat)
                open(currentIndex);
        }

        Keys.onReturnPressed: event => openCurrent(event)
        Keys.onEnterPressed: event => openCurrent(event)

        T.ScrollBar.vertical: DeskScrollBar {}

        delegate: FolderEntry {
            required property int index

            objectName: "save-entry-" + fileName
            width: ListView.view.width - 10
            isCurrent: list.activeFocus && ListView.isCurrentItem
            onChosen: {
                list.currentIndex = index;
                list.forceActiveFocus();
                if (!fileIsDir)
                    contents.fileChosen(fileName);
            }
            onOpened: list.open(index)
        }
    }
    DeskText {
        anchors.centerIn: parent
        visible: contents.isKnown && list.count === 0
        text: contents.emptyText
        color: Design.mutedText
    }
}
