import QtQuick
import QtQuick.Layouts
import Tavelo.Views

// The head of the report's table.
Rectangle {
    id: head

    required property appStrings strings

    implicitHeight: column.implicitHeight + 24
    radius: Design.radius
    color: Design.card
    border.color: Design.border

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: 12
        spacing: 12

        PartHead {
            title: head.strings.screenText(Screens.ScreenText.softwareTitle)
            subtitle: head.strings.screenText(Screens.ScreenText.softwareSubtitle)
            symbol: "square.stack.3d.up.fill"
            tint: "#0f766e"
        }
        ReportColumns {
            TableTitle {
                text: head.strings.screenText(Screens.ScreenText.numberColumn)
                Layout.preferredWidth: 34
            }
            TableTitle {
                text: head.strings.screenText(Screens.ScreenText.nameColumn)
                Layout.fillWidth: true
            }
            TableTitle {
                text: head.strings.text(Labels.AppI18nKey.version)
                Layout.preferredWidth: 84
            }
            TableTitle {
                text: head.strings.screenText(Screens.ScreenText.source)
                Layout.preferredWidth: 120
            }
            TableTitle {
                text: head.strings.auditDeveloperLabel()
                Layout.preferredWidth: 150
            }
            TableTitle {
                text: head.strings.auditSignatureLabel()
                Layout.preferredWidth: 120
            }
            TableTitle {
                text: head.strings.auditLicenseLabel()
                Layout.preferredWidth: 190
            }
        }
    }
}
