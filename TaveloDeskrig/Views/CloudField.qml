import QtQuick
import Tavelo.Views

// A line of text for the cloud.
ReportField {
    signal submitted

    text: ""
    Keys.onReturnPressed: submitted()
    Keys.onEnterPressed: submitted()
    onEdited: written => text = written
}
