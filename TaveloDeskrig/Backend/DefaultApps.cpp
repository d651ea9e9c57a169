#include "DefaultApps.h"

#include "Bundle.h"
#include "Clock.h"
#include "FileManager.h"
#include "InventoryText.h"
#include "MainQueue.h"

#include <algorithm>

namespace Tavelo
{

namespace
{

const QStringList &officeExtensions()
{
    static const QStringList extensions = {QStringLiteral("doc"),  QStringLiteral("docx"), QStringLiteral("xls"),
                                           QStringLiteral("xlsx"), QStringLiteral("ppt"),  QStringLiteral("pptx")};
    return extensions;
}

const QString dutiName = QStringLiteral("duti");

} // namespace

DefaultApps::DefaultApps(PlatformServices services, const AppRuntime &runtime, const CommandRunner &runner,
                         const Homebrew &homebrew, const OperationLog &log)
    : m_services(std::move(services)), m_runtime(runtime), m_runner(runner), m_homebrew(homebrew), m_log(log)
{
}

bool DefaultApps::onlyofficeMimeIsDefault() const
{
    if (!onlyofficeInstalled())
        return false;
    const std::optional<QString> duti = m_runner.commandPath(dutiName);
    const std::optional<QString> bundleID = onlyofficeBundleID();
    if (!duti || !bundleID)
        return false;
    const QStringList &extensions = officeExtensions();
    return std::all_of(extensions.cbegin(), extensions.cend(), [&](const QString &extension) {
        return m_runner.runCapture({*duti, QStringLiteral("-x"), extension}).contains(*bundleID);
    });
}

bool DefaultApps::onlyofficeInstalled() const
{
    const QStringList candidates = onlyofficeAppCandidates();
    return std::any_of(candidates.cbegin(), candidates.cend(),
                       [&](const QString &path) { return m_services.files->exists(path); });
}

bool DefaultApps::dutiInstalled() const
{
    return m_runner.commandPath(dutiName) || m_homebrew.brewList(dutiName, false);
}

QStringList DefaultApps::onlyofficeAppCandidates() const
{
    const QString own = m_runtime.homeDirectory() + QStringLiteral("/Applications/");
    return {QStringLiteral("/Applications/ONLYOFFICE.app"),
            QStringLiteral("/Applications/ONLYOFFICE Desktop Editors.app"), own + QStringLiteral("ONLYOFFICE.app"),
            own + QStringLiteral("ONLYOFFICE Desktop Editors.app")};
}

std::optional<QString> DefaultApps::onlyofficeBundleID() const
{
    const QStringList candidates = onlyofficeAppCandidates();
    for (const QString &path : candidates) {
        std::optional<QString> identifier = Bundle::identifier(*m_services.files, path);
        if (identifier && !identifier->isEmpty())
            return identifier;
    }
    return QStringLiteral("org.onlyoffice.desktopeditors");
}

bool DefaultApps::setMimeDefaults() const
{
    m_log.progress(QStringLiteral("Đang đặt ONLYOFFICE làm app mặc định"), 0.2);
    if (!onlyofficeInstalled()) {
        m_log.log(QStringLiteral("Chưa tìm thấy ONLYOFFICE trong /Applications. Hãy cài ONLYOFFICE trước."));
        return false;
    }
    if (!dutiInstalled()) {
        m_log.log(QStringLiteral("Chưa có duti, đang cài duti bằng Homebrew."));
        if (!m_homebrew.installBrewPackages({dutiName}, false))
            return false;
    }
    const std::optional<QString> duti = m_runner.commandPath(dutiName);
    if (!duti) {
        m_log.log(QStringLiteral("Không tìm thấy lệnh duti sau khi cài."));
        return false;
    }
    const std::optional<QString> bundleID = onlyofficeBundleID();
    if (!bundleID) {
        m_log.log(QStringLiteral("Không đọc được bundle id của ONLYOFFICE."));
        return false;
    }
    const bool succeeded =
        runDutiForEach(*duti, QStringLiteral("-s"), *bundleID, QStringLiteral("Đang đặt mặc định file ."));
    letLaunchServicesSettle();
    return succeeded && onlyofficeMimeIsDefault();
}

bool DefaultApps::resetMimeDefaults() const
{
    m_log.progress(QStringLiteral("Đang gỡ thiết lập app mặc định ONLYOFFICE"), 0.2);
    const std::optional<QString> duti = m_runner.commandPath(dutiName);
    const std::optional<QString> bundleID = onlyofficeBundleID();
    if (!duti || !bundleID) {
        m_log.log(QStringLiteral("Không tìm thấy duti hoặc bundle id ONLYOFFICE để gỡ default app."));
        return false;
    }
    const bool succeeded =
        runDutiForEach(*duti, QStringLiteral("-r"), *bundleID, QStringLiteral("Đang reset mặc định file ."));
    letLaunchServicesSettle();
    return succeeded && !onlyofficeMimeIsDefault();
}

bool DefaultApps::runDutiForEach(const QString &duti, const QString &action, const QString &bundleID,
                                 const QString &progressText) const
{
    bool succeeded = true;
    const QStringList &extensions = officeExtensions();
    for (qsizetype index = 0; index < extensions.size(); ++index) {
        const QString &extension = extensions.at(index);
        m_log.progress(progressText + extension,
                       0.35 + static_cast<double>(index) / static_cast<double>(extensions.size()) * 0.5);
        const QStringList arguments = {action, bundleID, extension, QStringLiteral("all")};
        // The identifier is whatever a bundle calls itself.
        const QString description = withoutControls(QStringLiteral("duti ") + arguments.join(u' '));
        if (m_runner.runCommand(QStringList(duti) + arguments, description) != 0)
            succeeded = false;
    }
    return succeeded;
}

/// What was just set can be read back only a moment later.
void DefaultApps::letLaunchServicesSettle() const
{
    m_services.mainQueue->service();
    m_services.clock->sleep(std::chrono::seconds(1));
}

} // namespace Tavelo
