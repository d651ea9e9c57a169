#include "DirectInstaller.h"

#include "Bundle.h"
#include "DirectAppVerifier.h"
#include "FileManager.h"

#include <QUrl>
#include <QUuid>

namespace Tavelo
{

namespace
{

/// Of the folders in the cache: no other user may change what is about to be checked and copied.
constexpr mode_t privateMode = 0700;

/// True for an address with the scheme `https`, written just so, and one of the hosts. Anything that does not parse
/// strictly is refused, so that two readers of an address cannot differ on its host.
bool isAllowed(const QString &address, const QSet<QString> &hosts)
{
    const QUrl url(address, QUrl::StrictMode);
    return address.startsWith(u"https:") && url.isValid() && !url.host().isEmpty() &&
           hosts.contains(url.host().toLower());
}

QString fileName(const QString &path)
{
    return path.section(u'/', -1);
}

bool isAppBundle(const QString &name)
{
    return name.size() > 4 && name.endsWith(u".app");
}

/// A folder name of one attempt's own.
QString attemptName(const AppItem &item)
{
    return item.id + u'-' + QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

} // namespace

DirectInstaller::DirectInstaller(PlatformServices services, const AppRuntime &runtime, const CommandRunner &runner,
                                 const OperationLog &log)
    : m_services(std::move(services)), m_runtime(runtime), m_runner(runner), m_log(log)
{
}

bool DirectInstaller::installDirectApp(const AppItem &item) const
{
    if (!item.directInstaller) {
        m_log.log(QStringLiteral("Thiếu direct installer manifest cho %1.").arg(item.macName));
        return false;
    }
    const DirectInstallerSpec &spec = *item.directInstaller;
    const QString downloads = m_runtime.cacheDir() + QStringLiteral("/downloads");
    const QString file = downloads + u'/' + spec.fileName;
    FileError error;
    // Whatever stands in the file's place goes, a link to nowhere too, so that the download makes a file of its own.
    if (!m_services.files->createFolder(downloads, privateMode, &error) ||
        (!m_services.files->remove(file, &error) && !error.isNothingThere())) {
        m_log.log(QStringLiteral("Không chuẩn bị được direct install cho %1: ").arg(item.macName) + error.text);
        return false;
    }

    if (!download(item, spec, file))
        return false;
    m_log.progress(QStringLiteral("Đã tải xong ") + item.macName, 0.35);
    switch (spec.installerType) {
    case InstallerType::dmg:
        return installDirectDMG(file, item, spec);
    case InstallerType::zip:
        return installDirectZIP(file, item, spec);
    }
    return false;
}

bool DirectInstaller::download(const AppItem &item, const DirectInstallerSpec &spec, const QString &file) const
{
    m_log.progress(QStringLiteral("Đang tải %1 từ nguồn chính thức").arg(item.macName), 0.08);
    m_log.log(QStringLiteral("Tải trực tiếp %1 từ nguồn chính thức.").arg(item.macName));
    if (!isAllowed(spec.url, spec.allowedDownloadHosts)) {
        m_log.log(QStringLiteral("URL tải không thuộc allowlist HTTPS của %1.").arg(item.macName));
        return false;
    }
    const auto [status, effectiveURL] = m_runner.runCaptureStatus(
        {QStringLiteral("/usr/bin/curl"), QStringLiteral("-fL"), QStringLiteral("--proto"), QStringLiteral("=https"),
         QStringLiteral("--proto-redir"), QStringLiteral("=https"), QStringLiteral("--max-redirs"), QStringLiteral("5"),
         QStringLiteral("--retry"), QStringLiteral("2"), QStringLiteral("--connect-timeout"), QStringLiteral("20"),
         QStringLiteral("--write-out"), QStringLiteral("%{url_effective}"), QStringLiteral("-o"), file, spec.url});
    if (status != 0 || !isAllowed(effectiveURL.trimmed(), spec.allowedDownloadHosts)) {
        m_log.log(QStringLiteral("Download thất bại hoặc redirect ra ngoài allowlist của %1.").arg(item.macName));
        m_services.files->remove(file);
        return false;
    }
    return true;
}

bool DirectInstaller::installDirectDMG(const QString &downloadedFile, const AppItem &item,
                                       const DirectInstallerSpec &spec) const
{
    const QString hdiutil = QStringLiteral("/usr/bin/hdiutil");
    const QString mountPoint = m_runtime.cacheDir() + QStringLiteral("/mounts/") + attemptName(item);
    FileError error;
    if (!m_services.files->createFolder(mountPoint, privateMode, &error)) {
        m_log.log(QStringLiteral("Không tạo được mount point: ") + error.text);
        return false;
    }
    m_log.progress(QStringLiteral("Đang mount bộ cài ") + item.macName, 0.45);
    const bool attached =
        m_runner.runCommand({hdiutil, QStringLiteral("attach"), downloadedFile, QStringLiteral("-nobrowse"),
                             QStringLiteral("-readonly"), QStringLiteral("-mountpoint"), mountPoint},
                            QStringLiteral("hdiutil attach ") + fileName(downloadedFile)) == 0;
    const bool installed = attached && installFound(mountPoint, QStringLiteral("DMG"), item, spec);
    if (attached)
        m_runner.runCommand({hdiutil, QStringLiteral("detach"), mountPoint, QStringLiteral("-quiet")},
                            QStringLiteral("hdiutil detach ") + mountPoint);
    m_services.files->remove(mountPoint);
    return installed;
}

bool DirectInstaller::installDirectZIP(const QString &downloadedFile, const AppItem &item,
                                       const DirectInstallerSpec &spec) const
{
    const QString folder = m_runtime.cacheDir() + QStringLiteral("/extract/") + attemptName(item);
    FileError error;
    if (!m_services.files->createFolder(folder, privateMode, &error)) {
        m_log.log(QStringLiteral("Không tạo được extract dir: ") + error.text);
        return false;
    }
    m_log.progress(QStringLiteral("Đang giải nén ") + item.macName, 0.45);
    const bool extracted = m_runner.runCommand({QStringLiteral("/usr/bin/unzip"), QStringLiteral("-q"), downloadedFile,
                                                QStringLiteral("-d"), folder},
                                               QStringLiteral("unzip ") + fileName(downloadedFile)) == 0;
    const bool installed = extracted && installFound(folder, QStringLiteral("ZIP"), item, spec);
    m_services.files->remove(folder);
    return installed;
}

bool DirectInstaller::installFound(const QString &folder, const QString &container, const AppItem &item,
                                   const DirectInstallerSpec &spec) const
{
    const std::optional<QString> bundle = findAppBundle(folder, spec.appBundleName);
    if (!bundle) {
        m_log.log(QStringLiteral("Không tìm thấy %1 trong %2.").arg(spec.appBundleName, container));
        return false;
    }
    m_log.progress(QStringLiteral("Đã tìm thấy app bundle ") + spec.appBundleName, 0.62);
    return copyDirectApp(*bundle, item, spec);
}

std::optional<QString> DirectInstaller::findAppBundle(const QString &root, const QString &name) const
{
    const QString atTop = root + u'/' + name;
    if (m_services.files->exists(atTop))
        return atTop;
    std::optional<QString> named;
    std::optional<QString> fallback;
    m_services.files->enumerate(root, EnumerationOption::skipHidden, [&](const FolderEntry &entry) {
        if (!isAppBundle(entry.name))
            return Walk::onwards;
        if (entry.name == name) {
            named = entry.path;
            return Walk::stop;
        }
        if (!fallback)
            fallback = entry.path;
        return Walk::skipDescendants;
    });
    return named ? named : fallback;
}

QString DirectInstaller::preferredApplicationsDirectory() const
{
    const QString shared = QStringLiteral("/Applications");
    return m_services.files->isWritable(shared) ? shared : m_runtime.homeDirectory() + shared;
}

bool DirectInstaller::copyDirectApp(const QString &bundle, const AppItem &item, const DirectInstallerSpec &spec) const
{
    m_log.progress(QStringLiteral("Đang kiểm tra bundle ") + item.macName, 0.68);
    if (!verifyDirectApp(bundle, spec)) {
        m_log.log(QStringLiteral(
            "Bundle tải về không đạt bundle ID, Team ID, designated requirement hoặc Gatekeeper policy."));
        return false;
    }
    const QString folder = preferredApplicationsDirectory();
    FileError error;
    if (!m_services.files->createFolder(folder, 0777, &error)) {
        m_log.log(QStringLiteral("Không tạo được thư mục cài %1: ").arg(folder) + error.text);
        return false;
    }
    const QString destination = folder + u'/' + spec.appBundleName;
    if (m_services.files->exists(destination)) {
        if (!verifyDirectApp(destination, spec)) {
            m_log.log(QStringLiteral("App đã tồn tại nhưng không đạt policy chữ ký kỳ vọng; không ghi đè."));
            return false;
        }
        m_log.log(QStringLiteral("%1 đã tồn tại tại %2.").arg(spec.appBundleName, destination));
        m_log.progress(QStringLiteral("%1 đã có sẵn trong Applications").arg(item.macName), 0.92);
        return true;
    }

    m_log.progress(QStringLiteral("Đang copy %1 vào %2").arg(item.macName, folder), 0.75);
    if (m_runner.runCommand({QStringLiteral("/usr/bin/ditto"), bundle, destination},
                            QStringLiteral("ditto %1 %2").arg(fileName(bundle), destination)) != 0)
        return false;
    m_log.progress(QStringLiteral("Đang kiểm tra app sau khi copy"), 0.90);
    if (!verifyDirectApp(destination, spec)) {
        m_log.log(QStringLiteral("App sau khi copy không đạt policy chữ ký; xoá bản copy không hoàn chỉnh."));
        m_services.files->remove(destination);
        return false;
    }
    m_log.log(QStringLiteral("Đã cài trực tiếp %1: %2").arg(item.macName, destination));
    return true;
}

bool DirectInstaller::removeDirectApp(const AppItem &item) const
{
    if (!item.directInstaller) {
        m_log.log(QStringLiteral("Thiếu direct installer manifest; từ chối gỡ %1.").arg(item.macName));
        return false;
    }
    bool removed = false;
    bool failed = false;
    for (const QString &entry : item.appPaths) {
        const QString path = m_runtime.expandingTilde(entry);
        if (!m_services.files->exists(path))
            continue;
        if (!verifyDirectApp(path, *item.directInstaller)) {
            m_log.log(QStringLiteral("Từ chối xoá %1: bundle ID hoặc chữ ký không khớp manifest %2.")
                          .arg(path, item.macName));
            failed = true;
            continue;
        }
        m_log.progress(QStringLiteral("Đang xoá ") + path, 0.55);
        FileError error;
        if (!m_services.files->remove(path, &error)) {
            m_log.log(QStringLiteral("Không xoá được %1: ").arg(path) + error.text);
            failed = true;
            continue;
        }
        m_log.log(QStringLiteral("Đã xoá app trực tiếp: ") + path);
        removed = true;
    }
    if (!removed && !failed)
        m_log.log(QStringLiteral("Không tìm thấy app direct để gỡ: ") + item.macName);
    return !failed;
}

bool DirectInstaller::verifyDirectApp(const QString &path, const DirectInstallerSpec &spec) const
{
    return DirectAppVerifier::verify(
        path, spec,
        {.bundleIdentifier = [this](const QString &bundle) { return Bundle::identifier(*m_services.files, bundle); },
         .runStatus = [this](const QStringList &arguments) { return m_runner.runQuiet(arguments); },
         .runOutput = [this](const QStringList &arguments) { return m_runner.runCaptureCombined(arguments); }});
}

} // namespace Tavelo
