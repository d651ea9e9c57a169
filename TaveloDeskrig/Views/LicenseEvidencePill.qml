import QtQuick
import Tavelo.Views

// What there is locally of an application's licence.
LabelledPill {
    required property string evidence
    required property appStrings strings

    label: strings.auditLicenseLabel()
    tone: Tones.licence(evidence)
}
