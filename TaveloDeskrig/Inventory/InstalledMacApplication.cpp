#include "InstalledMacApplication.h"

#include "MacInventoryClassifier.h"
#include "RecordJson.h"

#include <QHashFunctions>

using namespace Qt::StringLiterals;

namespace Tavelo
{

QString rawValue(AuditEvidenceState state)
{
    switch (state) {
    case AuditEvidenceState::verified:
        return u"verified"_s;
    case AuditEvidenceState::review:
        return u"review"_s;
    case AuditEvidenceState::local:
        return u"local"_s;
    case AuditEvidenceState::detected:
        break;
    }
    return u"detected"_s;
}

AuditEvidenceState InstalledMacApplication::auditEvidenceState() const
{
    if (signatureStatus == SignatureStatus::valid)
        return AuditEvidenceState::verified;
    if (signatureStatus == SignatureStatus::invalid || signatureStatus == SignatureStatus::unsignedCode)
        return AuditEvidenceState::review;
    if (signatureStatus == SignatureStatus::adHoc)
        return AuditEvidenceState::local;
    return AuditEvidenceState::detected;
}

QString InstalledMacApplication::resolvedDeveloperName() const
{
    QString known = developerName.value_or(QString()).trimmed();
    if (!known.isEmpty() && known != unknownSignatureText && !known.startsWith("Team "_L1))
        return known;
    if (!teamIdentifier.isEmpty() && teamIdentifier != unknownSignatureText && teamIdentifier != "not set"_L1)
        return "Team "_L1 + teamIdentifier;
    // The inference falls back on the name itself, and so gives nothing only where the name is blank.
    const QString inferred =
        MacInventoryClassifier::inferredDeveloperName(name, identifier, source).value_or(QString());
    return inferred.trimmed().isEmpty() ? u"Không xác định"_s : inferred;
}

size_t qHash(const InstalledMacApplication &application, size_t seed)
{
    return qHashMulti(seed, application.name, application.version, application.identifier, application.source,
                      application.signatureStatus, application.teamIdentifier, application.signingIdentifier,
                      application.developerName.value_or(QString()),
                      application.licenseEvidence.value_or(AppLicenseEvidence()));
}

QJsonObject toJson(const InstalledMacApplication &application)
{
    QJsonObject object{
        {u"name"_s, application.name},
        {u"version"_s, application.version},
        {u"identifier"_s, application.identifier},
        {u"source"_s, application.source},
        {u"signatureStatus"_s, application.signatureStatus},
        {u"teamIdentifier"_s, application.teamIdentifier},
        {u"signingIdentifier"_s, application.signingIdentifier},
    };
    if (application.developerName)
        object.insert("developerName"_L1, *application.developerName);
    if (application.licenseEvidence)
        object.insert("licenseEvidence"_L1, toJson(*application.licenseEvidence));
    return object;
}

std::optional<InstalledMacApplication> installedMacApplication(const QJsonObject &object)
{
    RecordReader reader(object);
    const InstalledMacApplication application{
        .name = reader.text("name"_L1),
        .version = reader.text("version"_L1),
        .identifier = reader.text("identifier"_L1),
        .source = reader.text("source"_L1),
        .signatureStatus = reader.text("signatureStatus"_L1),
        .teamIdentifier = reader.text("teamIdentifier"_L1),
        .signingIdentifier = reader.text("signingIdentifier"_L1),
        .developerName = reader.optional(
            "developerName"_L1,
            [](const QJsonValue &value) { return value.isString() ? std::optional(value.toString()) : std::nullopt; }),
        .licenseEvidence = reader.optional(
            "licenseEvidence"_L1, [](const QJsonValue &value) { return appLicenseEvidence(value.toObject()); }),
    };
    return reader.ok() ? std::optional(application) : std::nullopt;
}

} // namespace Tavelo
