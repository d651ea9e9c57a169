#pragma once

#include "AppStrings.h"
#include "InstalledMacApplication.h"

#include <QAbstractListModel>
#include <QList>

namespace Tavelo
{

/// The inventory, one row a record, in the order of the records, with every text finished in the language at hand.
class AuditListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        number = Qt::UserRole, ///< From 1.
        name,
        versionText,            ///< "—" where it is empty.
        applicationDescription, ///< The same after its word.
        source,
        developer,
        signatureState, ///< The raw value of `AuditEvidenceState`.
        signatureStatus,
        signatureText,
        licenseState, ///< The raw value of `AppLicenseEvidenceState`.
        licenseText,
    };
    Q_ENUM(Role)

    explicit AuditListModel(AppLanguage language) : m_strings(language) {}

    void setRecords(const QList<InstalledMacApplication> &records);
    void setLanguage(AppLanguage language);

    const QList<InstalledMacApplication> &records() const { return m_records; }

    /// How many records have a state that proves a key, how many need none, and how many are left. A record without
    /// evidence counts as one of which nothing was found.
    qsizetype keyPresentCount() const { return m_keyPresent; }
    qsizetype keyNotRequiredCount() const { return m_keyNotRequired; }
    qsizetype keyNotDetectedCount() const { return m_records.size() - m_keyPresent - m_keyNotRequired; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    QList<InstalledMacApplication> m_records;
    qsizetype m_keyPresent = 0;
    qsizetype m_keyNotRequired = 0;
    AppStrings m_strings;
};

/// The evidence of a record, or what stands for none.
AppLicenseEvidence licenseEvidenceOf(const InstalledMacApplication &application);

} // namespace Tavelo
