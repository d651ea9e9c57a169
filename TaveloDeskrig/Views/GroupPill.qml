import QtQuick
import Tavelo.Views

// A group that an item belongs to.
Pill {
    required property string groupID

    tone: Tones.group(groupID)
}
