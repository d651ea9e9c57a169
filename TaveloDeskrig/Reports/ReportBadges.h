#pragma once

#include "AppLicenseEvidence.h"

#include <QColor>
#include <QString>

namespace Tavelo
{

/// A word in a coloured pill.
struct ReportBadge {
    QString word;
    QColor text;
    QColor fill;

    bool operator==(const ReportBadge &) const = default;
};

namespace MacReportPDF
{

/// The badge of a `SignatureStatus` word; any other text gets that of a status that does not apply.
ReportBadge signatureBadge(const QString &signatureStatus, bool vietnamese);

ReportBadge licenseEvidenceBadge(AppLicenseEvidenceState state, bool vietnamese);

/// The colour of the dot before a line, told by the words in it: good, wanting, refused, or plain information.
QColor detailTint(const QString &text);

} // namespace MacReportPDF

} // namespace Tavelo
