#include "AppLicenseEvidence.h"

#include "RecordJson.h"

#include <QHashFunctions>
#include <QJsonArray>

#include <algorithm>
#include <iterator>

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

constexpr Word<AppLicenseEvidenceState> stateWords[] = {
    {AppLicenseEvidenceState::verifiedReceipt, u"verifiedReceipt"},
    {AppLicenseEvidenceState::receiptIntegrityVerified, u"receiptIntegrityVerified"},
    {AppLicenseEvidenceState::acquisitionReceipt, u"acquisitionReceipt"},
    {AppLicenseEvidenceState::licenseArtifact, u"licenseArtifact"},
    {AppLicenseEvidenceState::accountBased, u"accountBased"},
    {AppLicenseEvidenceState::freeOrOpenSource, u"freeOrOpenSource"},
    {AppLicenseEvidenceState::installationEvidence, u"installationEvidence"},
    {AppLicenseEvidenceState::needsEntitlementReview, u"needsEntitlementReview"},
    {AppLicenseEvidenceState::accessRestricted, u"accessRestricted"},
    {AppLicenseEvidenceState::noEvidence, u"noEvidence"},
    {AppLicenseEvidenceState::explicitUnlicensed, u"explicitUnlicensed"},
};

constexpr Word<LicenseEvidenceConfidence> confidenceWords[] = {
    {LicenseEvidenceConfidence::verified, u"verified"},
    {LicenseEvidenceConfidence::strong, u"strong"},
    {LicenseEvidenceConfidence::indicative, u"indicative"},
    {LicenseEvidenceConfidence::informational, u"informational"},
    {LicenseEvidenceConfidence::none, u"none"},
};

constexpr Word<LicenseEvidenceVerification> verificationWords[] = {
    {LicenseEvidenceVerification::verified, u"verified"},
    {LicenseEvidenceVerification::structurallyValid, u"structurallyValid"},
    {LicenseEvidenceVerification::detected, u"detected"},
    {LicenseEvidenceVerification::notVerified, u"notVerified"},
    {LicenseEvidenceVerification::inaccessible, u"inaccessible"},
    {LicenseEvidenceVerification::failed, u"failed"},
};

template <typename Value, size_t Count>
QString textOf(const Word<Value> (&words)[Count], Value value)
{
    const auto found =
        std::find_if(std::begin(words), std::end(words), [&](const auto &word) { return word.value == value; });
    Q_ASSERT(found != std::end(words));
    return found->text.toString();
}

template <typename Value, size_t Count>
std::optional<Value> valueOf(const Word<Value> (&words)[Count], QStringView text)
{
    for (const Word<Value> &word : words) {
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
    for (const QJsonValue element : array) {
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
