#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace Tavelo
{

class FileManager;

/// What a repair shop puts on its reports.
struct WorkspaceBranding {
    QString name; ///< Empty without branding.
    QImage logo;  ///< Null without one, and always where there is no name.
};

namespace MacReportPDF
{

/// The branding in the workspace that the cloud gave last, `technician-workspace.json` in the cache folder. Nothing
/// fails it: a file that cannot be read or understood brands nothing, a logo that is none leaves the name alone.
WorkspaceBranding loadWorkspaceBranding(const FileManager &files, const QString &cacheDirectory);

/// The same from the bytes of the file.
WorkspaceBranding workspaceBranding(const QByteArray &json);

} // namespace MacReportPDF

} // namespace Tavelo
