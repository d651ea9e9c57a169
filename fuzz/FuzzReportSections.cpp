#include "ReportBadges.h"
#include "ReportSections.h"

#include <cstdlib>

using namespace Tavelo;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const bool vietnamese : {false, true}) {
        const QList<ReportSection> sections = MacReportPDF::parseSections(text, vietnamese);
        for (const ReportSection &section : sections) {
            if (section.title.isEmpty() || section.lines.isEmpty())
                std::abort();
            for (const QString &line : section.lines)
                MacReportPDF::detailTint(line);
        }
    }
    if (MacReportPDF::reportValue(QStringLiteral("Chip"), text).isEmpty())
        std::abort();
    MacReportPDF::reportLanguage(text);
    return 0;
}
