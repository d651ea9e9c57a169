#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

/// The program's own judgement of who makes what and what needs a key. Identifiers and words are in lower case, for
/// lookups by lower-case text.
namespace Tavelo::ClassifierTables
{

/// Applications that come with macOS.
const QSet<QString> &operatingSystemBundleIdentifiers();

/// Applications that normally need no key.
const QSet<QString> &keyFreeBundleIdentifiers();

/// Applications that are licensed through an online account.
const QSet<QString> &accountBasedBundleIdentifiers();

/// Authorities in a signature that do not name the developer; in exact case.
const QSet<QString> &ignoredSigningAuthorities();

struct VendorRule {
    QString vendor;
    QStringList tokens; ///< Beginnings of identifiers, and names.
};

/// The first rule that matches decides.
const QList<VendorRule> &vendorRules();

/// First parts of identifiers behind which the organisation stands.
const QSet<QString> &domainPrefixes();

/// Second parts of identifiers that name no organisation.
const QSet<QString> &genericOrganisations();

/// Spelling of words that do not simply begin with a capital, by lower-case word.
const QHash<QString, QString> &projectNameWords();

} // namespace Tavelo::ClassifierTables
