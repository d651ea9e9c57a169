#pragma once

#include "InstalledMacApplication.h"
#include "MacReportProfile.h"

#include <QColor>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace Tavelo
{

/// A labelled value in a cell of its own.
struct ReportCell {
    QString label;
    QString value;
    QColor tint;

    bool operator==(const ReportCell &) const = default;
};

/// The pieces of content that a PDF report is made of. A block knows its content and nothing of its place on a page.
namespace Blocks
{

struct Hero {
    QString title;
    QString subtitle;
    bool operator==(const Hero &) const = default;
};

struct Hardware {
    QList<ReportCell> cells;
    bool operator==(const Hardware &) const = default;
};

struct Metadata {
    QList<ReportCell> cells;
    bool operator==(const Metadata &) const = default;
};

struct Notes {
    QString label;
    QString value;
    bool operator==(const Notes &) const = default;
};

struct Summary {
    QList<ReportCell> cells;
    bool operator==(const Summary &) const = default;
};

struct SectionTitle {
    QString title;
    std::optional<QString> detail; ///< Shown in a pill at the right: a count.
    bool operator==(const SectionTitle &) const = default;
};

struct ApplicationHeader {
    QStringList titles; ///< One for each of the seven columns.
    bool operator==(const ApplicationHeader &) const = default;
};

struct ApplicationRow {
    qsizetype number = 0; ///< Counts from 1.
    InstalledMacApplication application;
    bool alternate = false; ///< Shaded.
    bool vietnamese = false;
    bool operator==(const ApplicationRow &) const = default;
};

struct DetailRow {
    QString text;
    bool alternate = false; ///< Shaded.
    bool operator==(const DetailRow &) const = default;
};

struct Paragraph {
    QString text;
    bool operator==(const Paragraph &) const = default;
};

struct Spacer {
    double height = 0; ///< In points.
    bool operator==(const Spacer &) const = default;
};

} // namespace Blocks

using Block = std::variant<Blocks::Hero, Blocks::Hardware, Blocks::Metadata, Blocks::Notes, Blocks::Summary,
                           Blocks::SectionTitle, Blocks::ApplicationHeader, Blocks::ApplicationRow, Blocks::DetailRow,
                           Blocks::Paragraph, Blocks::Spacer>;

namespace MacReportPDF
{

/// What the report shows, from top to bottom. The hardware comes from the text report, the software from the records.
/// `now` is the time shown as that of the export.
QList<Block> makeBlocks(const QString &reportText, const QList<InstalledMacApplication> &applications,
                        const MacReportProfile &profile, bool vietnamese, const QDateTime &now);

} // namespace MacReportPDF

} // namespace Tavelo
