#pragma once

#include "AppLanguage.h"
#include "InstalledMacApplication.h"
#include "MacReportPDF.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace Tavelo
{

/// Software of an invented office, in every state that a report can show. Names tell themselves apart by a number.
QList<InstalledMacApplication> sampleApplications(qsizetype count, int signalsEach);

/// A text report about it in that language, of a fixed Mac at a fixed time.
QString sampleReportText(AppLanguage language, const QList<InstalledMacApplication> &applications);

/// `technician-workspace.json` of a repair shop whose logo has that size in pixels.
QByteArray sampleBranding(const QString &name, const QSize &logoSize);

/// A PDF report to look at.
struct SampleReport {
    QString name; ///< Becomes a file's name.
    MacReportPDF::Contents contents;
    QByteArray branding; ///< `technician-workspace.json`; empty for none.
};

/// Every kind of document: empty, short, long, branded, with long names and notes, with hostile texts, and around a
/// report in each language.
QList<SampleReport> sampleReports();

/// The time of every sample: 2026-11-22 17:05:09.
QDateTime sampleTime();

} // namespace Tavelo
