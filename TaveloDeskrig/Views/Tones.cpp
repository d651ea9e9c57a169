#include "Tones.h"

#include "InstalledMacApplication.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

const Tone green{{0x16, 0x65, 0x34}, {0xDC, 0xFC, 0xE7}, {0x86, 0xD9, 0xA5}};
const Tone red{{0xB4, 0x23, 0x18}, {0xFE, 0xE4, 0xE2}, {0xF3, 0xA9, 0xA3}};
const Tone deepRed{{0x99, 0x1B, 0x1B}, {0xFE, 0xE2, 0xE2}, {0xF0, 0xA4, 0xA4}};
const Tone amber{{0xB5, 0x47, 0x08}, {0xFF, 0xEA, 0xD5}, {0xF5, 0xBF, 0x8B}};
const Tone orange{{0x9A, 0x34, 0x12}, {0xFF, 0xED, 0xD5}, {0xF4, 0xB9, 0x86}};
const Tone sky{{0x07, 0x59, 0x85}, {0xE0, 0xF2, 0xFE}, {0x90, 0xCC, 0xF0}};
const Tone violet{{0x5B, 0x3A, 0x8A}, {0xF3, 0xED, 0xFF}, {0xCB, 0xB5, 0xEE}};
const Tone grey{{0x47, 0x54, 0x67}, {0xF2, 0xF4, 0xF7}, {0xD0, 0xD5, 0xDD}};
const Tone blue{{0x15, 0x5D, 0xA6}, {0xE5, 0xF0, 0xFD}, {0xA5, 0xC9, 0xEE}};

/// The colour itself on a breath of it.
Tone tinted(const QColor &colour, const QString &symbol = {})
{
    QColor fill = colour;
    fill.setAlphaF(0.12F);
    QColor border = colour;
    border.setAlphaF(0.35F);
    return {colour, fill, border, symbol};
}

Tone of(const QHash<QString, Tone> &tones, const QString &state)
{
    return tones.value(state, grey);
}

} // namespace

Tone Tones::status(const QString &status)
{
    static const QHash<QString, Tone> tones{
        {u"installed"_s, green}, {u"working"_s, amber},  {u"failed"_s, red},
        {u"missing"_s, grey},    {u"blocked"_s, violet},
    };
    return of(tones, status);
}

Tone Tones::group(const QString &groupID)
{
    static const QHash<QString, Tone> tones{
        {u"office"_s, {{138, 67, 11}, {255, 241, 224}, {246, 219, 184}}},
        {u"microsoft"_s, {{25, 92, 168}, {229, 240, 255}, {196, 220, 248}}},
        {u"printer"_s, {{88, 49, 164}, {241, 236, 255}, {218, 206, 250}}},
        {u"meeting"_s, {{7, 89, 133}, {224, 245, 252}, {184, 226, 242}}},
        {u"media"_s, {{22, 101, 52}, {226, 248, 234}, {189, 232, 205}}},
    };
    return of(tones, groupID);
}

Tone Tones::source()
{
    return {{28, 91, 156}, {232, 242, 255}, {200, 222, 248}};
}

Tone Tones::checkLevel(const QString &level)
{
    static const QHash<QString, Tone> tones{
        {u"OK"_s, tinted(success)}, {u"WARN"_s, tinted(warning)}, {u"FAIL"_s, tinted(danger)}};
    return of(tones, level);
}

Tone Tones::readiness(const QString &level)
{
    const QColor solid = checkLevel(level).text;
    return {{17, 28, 43}, solid, solid};
}

Tone Tones::auditEvidence(const QString &state)
{
    static const QHash<QString, Tone> tones{
        {rawValue(AuditEvidenceState::verified), green},
        {rawValue(AuditEvidenceState::review), red},
        {rawValue(AuditEvidenceState::local), amber},
        {rawValue(AuditEvidenceState::detected), blue},
    };
    return of(tones, state);
}

Tone Tones::signature(const QString &status)
{
    static const QHash<QString, Tone> tones{
        {SignatureStatus::valid.toString(), green},
        {SignatureStatus::invalid.toString(), red},
        {SignatureStatus::unsignedCode.toString(), red},
        {SignatureStatus::adHoc.toString(), amber},
    };
    return of(tones, status);
}

Tone Tones::licence(const QString &state)
{
    using State = AppLicenseEvidenceState;
    static const QHash<QString, Tone> tones{
        {rawValue(State::verifiedReceipt), green},
        {rawValue(State::receiptIntegrityVerified), green},
        {rawValue(State::acquisitionReceipt), green},
        {rawValue(State::licenseArtifact), green},
        {rawValue(State::accountBased), sky},
        {rawValue(State::freeOrOpenSource), sky},
        {rawValue(State::installationEvidence), violet},
        {rawValue(State::needsEntitlementReview), orange},
        {rawValue(State::explicitUnlicensed), deepRed},
    };
    return of(tones, state);
}

Tone Tones::toast(int kind)
{
    switch (static_cast<ToastMessage::Kind>(kind)) {
    case ToastMessage::Kind::success:
        return tinted(success, u"checkmark.circle.fill"_s);
    case ToastMessage::Kind::warning:
        return tinted(warning, u"exclamationmark.triangle.fill"_s);
    case ToastMessage::Kind::failure:
        return tinted(danger, u"xmark.octagon.fill"_s);
    }
    return grey;
}

} // namespace Tavelo
