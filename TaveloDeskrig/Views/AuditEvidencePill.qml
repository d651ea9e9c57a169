import QtQuick
import Tavelo.Views

// What an application's signature shows.
LabelledPill {
    required property string evidence
    required property string status
    required property appStrings strings

    label: strings.auditSignatureLabel()
    text: status
    tone: Tones.auditEvidence(evidence)
}
