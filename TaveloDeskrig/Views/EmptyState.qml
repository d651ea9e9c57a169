import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// Says that there is nothing yet, and offers to change that.
Item {
    id: state

    property string symbol: ""
    property string title: ""
    property real titleSize: 18
    property string detail: ""
    property string buttonSymbol: ""
    property string buttonText: ""
    property string buttonName: ""
    property bool buttonEnabled: true
    signal started

    implicitHeight: column.implicitHeight + 8

    ColumnLayout {
        id: column

        anchors.centerIn: parent
        width: Math.min(parent.width, 620)
        spacing: 8

        SymbolIcon {
            symbol: state.symbol
            size: 30
            color: Design.mutedText
            Layout.alignment: Qt.AlignHCenter
        }
        WrappedText {
            text: state.title
            font.pixelSize: state.titleSize
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignHCenter
            Layout.fillWidth: true
        }
        WrappedText {
            text: state.detail
            color: Design.mutedText
            font.pixelSize: 12
            horizontalAlignment: Text.AlignHCenter
            Layout.fillWidth: true
        }
        DefaultButton {
            objectName: state.buttonName
            text: state.buttonText
            symbol: state.buttonSymbol
            enabled: state.buttonEnabled
            Layout.topMargin: 6
            Layout.alignment: Qt.AlignHCenter
            onClicked: state.started()
        }
    }
}
