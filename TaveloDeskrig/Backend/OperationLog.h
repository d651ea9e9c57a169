#pragma once

#include "AppItem.h"
#include "AppRuntime.h"
#include "PlatformServices.h"

#include <QString>

#include <functional>
#include <optional>

namespace Tavelo
{

/// How a front end hears of the backend's work. Both are always entered on the main queue, in the order of the events,
/// and may be called after the operation that caused them has ended.
using UiLog = std::function<void(const QString &line)>;
using UiProgress = std::function<void(const InstallProgressUpdate &update)>;

/// The one log: a private text file that only ever grows, and a live copy of each line to the interface.
///
/// A line is `[HH:mm:ss] text`, in local time. The file has mode 0600 and its folder mode 0700, also where they were
/// wider before. May be called from any thread; lines of several threads and processes never mix.
class OperationLog
{
public:
    /// Makes the log's folder and file ready; what fails here shows at the first line.
    OperationLog(PlatformServices services, const AppRuntime &runtime, UiLog uiLog, UiProgress uiProgress);

    /// Writes the text before it returns, and queues it for the interface. Line ends and tabs stay as they are; any
    /// other control character reads as a blank, since a terminal may show the line. A file that cannot be written is
    /// told to the interface and stops nothing.
    void log(const QString &text) const;

    /// Logs the step as a "PROGRESS" line and queues it for the interface. The fraction is clamped to 0…1; its
    /// percentage is cut, not rounded.
    void progress(const QString &message, std::optional<double> fraction) const;

    QString file() const { return m_file; }

private:
    void queueForInterface(const QString &text) const;

    PlatformServices m_services;
    QString m_folder;
    QString m_file;
    UiLog m_uiLog;
    UiProgress m_uiProgress;
};

} // namespace Tavelo
