import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The titles of the report's columns, within the border of the table's card.
Rectangle {
    id: titles

    required property appStrings strings

    implicitHeight: 32

    ReportColumns {
        anchors.fill: parent
        anchors.leftMargin: 11
        anchors.rightMargin: 11

        TableTitle {
            text: titles.strings.screenText(Screens.ScreenText.numberColumn)
            Layout.preferredWidth: 34
        }
        TableTitle {
            text: titles.strings.screenText(Screens.ScreenText.nameColumn)
            Layout.fillWidth: true
        }
        TableTitle {
            text: titles.strings.text(Labels.AppI18nKey.version)
            Layout.preferredWidth: 84
        }
        TableTitle {
            text: titles.strings.screenText(Screens.ScreenText.source)
            Layout.preferredWidth: 120
        }
        TableTitle {
            text: titles.strings.auditDeveloperLabel()
            Layout.preferredWidth: 150
        }
        TableTitle {
            text: titles.strings.auditSignatureLabel()
            Layout.preferredWidth: 120
        }
        TableTitle {
            text: titles.strings.auditLicenseLabel()
            Layout.preferredWidth: 190
        }
    }
    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 1
        color: "#e1e7ef"
    }
}
