pragma Singleton

import QtQuick
import Tavelo.Views

// The palette.
QtObject {
    readonly property color primary: "#ff4f17"
    readonly property color sidebarSelected: "#b8775d"
    readonly property color sidebarAction: "#39d642"
    readonly property color sidebar: "#111c2b"
    readonly property color sidebarMuted: "#9fb0c3"
    readonly property color background: "#f6f3ee"
    readonly property color card: "#ffffff"
    readonly property color iconFrame: "#f5f7fa"
    readonly property color border: "#dfe5ee"
    readonly property color text: "#17202a"
    readonly property color mutedText: "#667085"
    readonly property color success: Tones.success
    readonly property color warning: Tones.warning
    readonly property color danger: Tones.danger

    // Shades of the main text, from a row's title to a remark.
    readonly property color strongText: "#111827"
    readonly property color symbolText: "#1f2937"
    readonly property color softText: "#697386"
    readonly property color slate: "#475467"

    readonly property color track: "#e5e7eb"
    readonly property color iconFrameBorder: "#e6ebf2"
    readonly property color hovered: "#eef1f5"
    readonly property color pressed: "#e3e8ef"
    readonly property color primaryTint: "#1fff4f17"
    readonly property color dangerTint: "#1fd64545"
    readonly property color focusRing: "#2f6fed"
    readonly property color dim: "#73111c2b"

    readonly property int radius: 8
    readonly property int bannerDuration: 180
}
