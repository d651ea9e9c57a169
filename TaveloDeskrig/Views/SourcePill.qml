import QtQuick
import Tavelo.Views

// Where an item comes from, or how much of it.
Pill {
    tone: Tones.source()
}
