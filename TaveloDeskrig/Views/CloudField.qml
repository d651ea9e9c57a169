import QtQuick
import Tavelo.Views

// A line of text for the cloud.
ReportField {
    text: ""
    onEdited: written => text = written
}
