import QtQuick
import Tavelo.Views

// A line of text for the cloud.
ReportField {
    signal submitted

    text: ""
    Keys.onReturnPressed: event => submit(event)
    Keys.onEnterPressed: event => submit(event)
    onEdited: written => text = written

    function submit(event: KeyEvent) {
        if (!event.isAutoRepeat)
            submitted();
    }
}
