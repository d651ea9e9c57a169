#include "AuditListModel.h"

#include "RoleNames.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

enum class Key { present, notRequired, notDetected };

Key keyOf(const InstalledMacApplication &application)
{
    switch (licenseEvidenceOf(application).state) {
    case AppLicenseEvidenceState::verifiedReceipt:
    case AppLicenseEvidenceState::receiptIntegrityVerified:
    case AppLicenseEvidenceState::acquisitionReceipt:
    case AppLicenseEvidenceState::licenseArtifact:
        return Key::present;
    case AppLicenseEvidenceState::freeOrOpenSource:
    case AppLicenseEvidenceState::accountBased:
        return Key::notRequired;
    default:
        return Key::notDetected;
    }
}

qsizetype count(const QList<InstalledMacApplication> &records, Key key)
{
    return std::count_if(records.cbegin(), records.cend(), [key](const auto &each) { return keyOf(each) == key; });
}

QString versionOf(const InstalledMacApplication &application)
{
    return application.version.isEmpty() ? unknownSignatureText.toString() : application.version;
}

} // namespace

AppLicenseEvidence licenseEvidenceOf(const InstalledMacApplication &application)
{
    return application.licenseEvidence.value_or(
        AppLicenseEvidence{.state = AppLicenseEvidenceState::noEvidence,
                           .source = u"none"_s,
                           .detail = u"No operating-system license entitlement evidence was collected."_s});
}

void AuditListModel::setRecords(const QList<InstalledMacApplication> &records)
{
    if (records == m_records)
        return;
    beginResetModel();
    m_records = records;
    m_keyPresent = count(records, Key::present);
    m_keyNotRequired = count(records, Key::notRequired);
    endResetModel();
}

void AuditListModel::setLanguage(AppLanguage language)
{
    m_strings = AppStrings(language);
    if (!m_records.isEmpty())
        Q_EMIT dataChanged(index(0), index(static_cast<int>(m_records.size()) - 1),
                           {applicationDescription, signatureText, licenseText});
}

int AuditListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

QVariant AuditListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const InstalledMacApplication &record = m_records.at(index.row());
    switch (role) {
    case number:
        return index.row() + 1;
    case name:
        return record.name;
    case versionText:
        return versionOf(record);
    case applicationDescription:
        return u"%1 %2"_s.arg(m_strings.text(AppI18nKey::version), versionOf(record));
    case source:
        return record.source;
    case developer:
        return record.resolvedDeveloperName();
    case signatureState:
        return rawValue(record.auditEvidenceState());
    case signatureStatus:
        return record.signatureStatus;
    case signatureText:
        return m_strings.auditSignatureStatusLabel(record.signatureStatus);
    case licenseState:
        return rawValue(licenseEvidenceOf(record).state);
    case licenseText:
        return m_strings.auditLicenseEvidenceLabel(licenseEvidenceOf(record).state);
    default:
        return {};
    }
}

QHash<int, QByteArray> AuditListModel::roleNames() const
{
    return roleNamesOf<Role>();
}

} // namespace Tavelo
