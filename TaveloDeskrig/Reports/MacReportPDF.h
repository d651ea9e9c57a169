#pragma once

#include "InstalledMacApplication.h"
#include "MacReportProfile.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

namespace Tavelo
{

class FileManager;

/// Why an export failed, where the system has no words for it.
enum class ExportError { cannotCreateDocument };

/// What a person reads, in Vietnamese in every language of the interface.
QString description(ExportError error);

/// The PDF report: an A4 document of a fixed layout, Vietnamese for a Vietnamese text report and English for any other.
///
/// `makeBlocks` turns the inputs into blocks (`ReportBlocks.h`), `paginate` breaks them into pages (`ReportPages.h`),
/// `draw` and its like draw them (`ReportPainter.h`). All of it needs the GUI application object, and may run on any
/// thread.
namespace MacReportPDF
{

/// What goes into a document.
struct Contents {
    QString reportText; ///< The text report, which is read back for the hardware and the sections.
    QList<InstalledMacApplication> applications;
    MacReportProfile profile;
};

/// Where a document is made.
struct Surroundings {
    const FileManager &files;
    QString resourcesDirectory; ///< Mac path of a folder that may hold the program's icon; empty for none.
    QString cacheDirectory;     ///< Mac path of the folder that may hold the branding of a repair shop.
    QDateTime now;              ///< The time shown as that of the export.
};

/// The finished document; nothing if it cannot be made.
std::optional<QByteArray> document(const Contents &contents, const Surroundings &surroundings);

/// Writes the document to the Mac path, with mode 0600. Whatever happens, the path holds an earlier document or the new
/// one, whole. Gives nothing on success, else what a person is told: the description of `ExportError`, or where the
/// disk or the mode is at fault the system's own words. When only the mode failed, the document is in place.
std::optional<QString> write(const Contents &contents, const QString &path, const Surroundings &surroundings);

} // namespace MacReportPDF

} // namespace Tavelo
