#pragma once

#include "AppLanguage.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace Tavelo
{

/// A heading of the text report, without its colon, and the lines that stand under it, without their "- ".
struct ReportSection {
    QString title;
    QStringList lines;

    bool operator==(const ReportSection &) const = default;
};

/// Reads the text report back. Its labels and headings are known in all five languages; text that is no report at all
/// reads as one section of its lines.
namespace MacReportPDF
{

/// What the report says behind "{label}:" in the first line that begins so; an em dash where it says nothing.
QString reportValue(const QString &label, const QString &text);

/// The sections in their order, without the additional software, which the PDF takes from the records. With
/// `vietnamese` the titles are Vietnamese whatever the report's language. Empty only for a text without any line.
QList<ReportSection> parseSections(const QString &text, bool vietnamese);

/// Whether the report is Vietnamese, which makes the PDF around it Vietnamese too.
bool isVietnamese(const QString &reportText);

/// The language of the report's headings; English where it has none of them.
AppLanguage reportLanguage(const QString &reportText);

} // namespace MacReportPDF

} // namespace Tavelo
