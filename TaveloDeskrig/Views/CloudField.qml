import QtQuick
import Tavelo.Views

// A line of text for the cloud. Return sends it, unless it is empty: what stands there for others is not to go by a slip.
ReportField {
    signal submitted

    text: ""
    Keys.onReturnPressed: event => submit(event)
    Keys.onEnterPressed: event => submit(event)
    onEdited: written => text = written

    function submit(event: KeyEvent) {
        if (!event.isAutoRepeat && text.trim() !== "")
            submitted();
    }
}
