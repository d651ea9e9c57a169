#include "OperationLog.h"

#include "Clock.h"
#include "FileManager.h"
#include "MainQueue.h"

#include <algorithm>

namespace Tavelo
{

namespace
{

constexpr mode_t folderMode = 0700;
constexpr mode_t fileMode = 0600;

/// Line ends and tabs stay; what else could drive a terminal reads as a blank.
QString printable(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control && character != u'\n' && character != u'\t')
            character = u' ';
    }
    return text;
}

/// Creates what is missing, with modes private to the user. The folder's mode is best effort: it may belong to another.
bool prepare(const FileManager &files, const QString &folder, const QString &file, FileError *error)
{
    if (!files.createFolder(folder, folderMode, error))
        return false;
    files.setMode(folder, folderMode);
    if (!files.exists(file) && !files.createFile(file, fileMode, error) && !files.exists(file))
        return false; // existing by now means that another process was quicker
    // A folder in the file's place keeps its mode; writing to it fails soon enough.
    return files.isFolder(file) || files.setMode(file, fileMode, error);
}

} // namespace

OperationLog::OperationLog(PlatformServices services, const AppRuntime &runtime, UiLog uiLog, UiProgress uiProgress)
    : m_services(std::move(services)), m_folder(runtime.logDir()), m_file(runtime.logFile()), m_uiLog(std::move(uiLog)),
      m_uiProgress(std::move(uiProgress))
{
    prepare(*m_services.files, m_folder, m_file, nullptr);
}

void OperationLog::log(const QString &text) const
{
    const QString time = m_services.clock->now().toString(QStringLiteral("HH:mm:ss"));
    const QString entry = QStringLiteral("[%1] ").arg(time) + printable(text);
    FileError error;
    if (!prepare(*m_services.files, m_folder, m_file, &error) ||
        !m_services.files->append(m_file, entry.toUtf8() + '\n', &error))
        queueForInterface(QStringLiteral("[%1] Không ghi được log file: ").arg(time) + error.text);
    queueForInterface(entry);
}

void OperationLog::progress(const QString &message, std::optional<double> fraction) const
{
    if (fraction) {
        fraction = std::clamp(*fraction, 0.0, 1.0);
        log(QStringLiteral("PROGRESS %1%: ").arg(static_cast<int>(*fraction * 100)) + message);
    } else {
        log(QStringLiteral("PROGRESS: ") + message);
    }
    m_services.mainQueue->post(
        [deliver = m_uiProgress, update = InstallProgressUpdate{message, fraction}] { deliver(update); });
}

void OperationLog::queueForInterface(const QString &text) const
{
    m_services.mainQueue->post([deliver = m_uiLog, text] { deliver(text); });
}

} // namespace Tavelo
