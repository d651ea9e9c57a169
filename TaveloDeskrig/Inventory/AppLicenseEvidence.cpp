#include "AppLicenseEvidence.h"

#include "RecordJson.h"

#include <QHashFunctions>
#include <QJsonArray>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

template <typename Value>
struct Word {
    Value value;
    QStringView text;
};

constexpr std::array stateWords = {
    Word{AppLicenseEvidenceState::verifiedReceipt, u"verifiedReceipt"},
    Word{AppLicenseEvidenceState::receiptIntegrityVerified, u"receiptIntegrityVerified"},
    Word{AppLicenseEvidenceState::acquisitionReceipt, u"acquisitionReceipt"},
    Word{AppLicenseEvidenceState::licenseArtifact, u"licenseArtifact"},
    Word{AppLicenseEvidenceState::accountBased, u"accountBased"},
    Word{AppLicenseEvidenceState::freeOrOpenSource, u"freeOrOpenSource"},
    Word{AppLicenseEvidenceState::installationEvidence, u"installationEvidence"},
    Word{AppLicenseEvidenceState::needsEntitlementReview, u"needsEntitlementReview"},
    Word{AppLicenseEvidenceState::accessRestricted, u"accessRestricted"},
    Word{AppLicenseEvidenceState::noEvidence, u"noEvidence"},
    Word{AppLicenseEvidenceState::explicitUnlicensed, u"explicitUnlicensed"},
};

constexpr std::array confidenceWords = {
    Word{LicenseEvidenceConfidence::verified, u"verified"},
    Word{LicenseEvidenceConfidence::strong, u"strong"},
    Word{LicenseEvidenceConfidence::indicative, u"indicative"},
    Word{LicenseEvidenceConfidence::informational, u"informational"},
    Word{LicenseEvidenceConfidence::none, u"none"},
};

constexpr std::array verificationWords = {
    Word{LicenseEvidenceVerification::verified, u"verified"},
    Word{LicenseEvidenceVerification::structurallyValid, u"structurallyValid"},
    Word{LicenseEvidenceVerification::detected, u"detected"},
    Word{LicenseEvidenceVerification::notVerified, u"notVerified"},
    Word{LicenseEvidenceVerification::inaccessible, u"inaccessible"},
    Word{LicenseEvidenceVerification::failed, u"failed"},
};

template <typename Words, typename Value>
QString textOf(const Words &words, Value value)
{
    const auto found = std::find_if(words.begin(), words.end(), [&](const auto &word) { return word.value == value; });
    Q_ASSERT(found != words.end());
    return found->text.toString();
}

template <typename Words>
auto valueOf(const Words &words, QStringView text) -> std::optional<decltype(words.front().value)>
{
    for (const auto &word : words) {
        if (word.text == text)
            return word.value;
    }
    return std::nullopt;
}

std::optional<QList<LicenseEvidenceSignal>> signalList(const QJsonValue &value)
{
    if (!value.isArray())
        return std::nullopt;
    QList<LicenseEvidenceSignal> list;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &element : array) {
        const std::optional<LicenseEvidenceSignal> signal = licenseEvidenceSignal(element.toObject());
        if (!signal)
            return std::nullopt;
        list.append(*signal);
    }
    return list;
}

} // namespace

QString rawValue(AppLicenseEvidenceState state)
{
    return textOf(stateWords, state);
}

QString rawValue(LicenseEvidenceConfidence confidence)
{
    return textOf(confidenceWords, confidence);
}

QString rawValue(LicenseEvidenceVerification verification)
{
    return textOf(verificationWords, verification);
}

std::optional<AppLicenseEvidenceState> appLicenseEvidenceState(QStringView rawValue)
{
    return valueOf(stateWords, rawValue);
}

std::optional<LicenseEvidenceConfidence> licenseEvidenceConfidence(QStringView rawValue)
{
    return valueOf(confidenceWords, rawValue);
}

std::optional<LicenseEvidenceVerification> licenseEvidenceVerification(QStringView rawValue)
{
    return valueOf(verificationWords, rawValue);
}

const QList<LicenseEvidenceConfidence> &allLicenseEvidenceConfidences()
{
    static const QList<LicenseEvidenceConfidence> all = [] {
        QList<LicenseEvidenceConfidence> values;
        for (const auto &word : confidenceWords)
            values.append(word.value);
        return values;
    }();
    return all;
}

size_t qHash(const LicenseEvidenceSignal &signal, size_t seed)
{
    return qHashMulti(seed, signal.kind, signal.source, static_cast<int>(signal.verification), signal.detail);
}

size_t qHash(const AppLicenseEvidence &evidence, size_t seed)
{
    return qHashMulti(seed, static_cast<int>(evidence.state), evidence.source, evidence.detail,
                      evidence.confidence ? static_cast<int>(*evidence.confidence) : -1,
                      evidence.signals.value_or(QList<LicenseEvidenceSignal>()));
}

QJsonObject toJson(const LicenseEvidenceSignal &signal)
{
    return {
        {u"kind"_s, signal.kind},
        {u"source"_s, signal.source},
        {u"verification"_s, rawValue(signal.verification)},
        {u"detail"_s, signal.detail},
    };
}

QJsonObject toJson(const AppLicenseEvidence &evidence)
{
    QJsonObject object{
        {u"state"_s, rawValue(evidence.state)},
        {u"source"_s, evidence.source},
        {u"detail"_s, evidence.detail},
    };
    if (evidence.confidence)
        object.insert("confidence"_L1, rawValue(*evidence.confidence));
    if (evidence.signals) {
        QJsonArray array;
        for (const LicenseEvidenceSignal &signal : *evidence.signals)
            array.append(toJson(signal));
        object.insert("signals"_L1, array);
    }
    return object;
}

std::optional<LicenseEvidenceSignal> licenseEvidenceSignal(const QJsonObject &object)
{
    RecordReader reader(object);
    const LicenseEvidenceSignal signal{
        .kind = reader.text("kind"_L1),
        .source = reader.text("source"_L1),
        .verification = reader.word("verification"_L1, licenseEvidenceVerification),
        .detail = reader.text("detail"_L1),
    };
    return reader.ok() ? std::optional(signal) : std::nullopt;
}

std::optional<AppLicenseEvidence> appLicenseEvidence(const QJsonObject &object)
{
    RecordReader reader(object);
    const AppLicenseEvidence evidence{
        .state = reader.word("state"_L1, appLicenseEvidenceState),
        .source = reader.text("source"_L1),
        .detail = reader.text("detail"_L1),
        .confidence = reader.optional(
            "confidence"_L1, [](const QJsonValue &value) { return licenseEvidenceConfidence(value.toString()); }),
        .signals = reader.optional("signals"_L1, signalList),
    };
    return reader.ok() ? std::optional(evidence) : std::nullopt;
}

} // namespace Tavelo
