#include "SystemChecks.h"

#include "Catalog.h"
#include "Endpoints.h"
#include "FileManager.h"
#include "InventoryText.h"
#include "SystemFacts.h"

#include <algorithm>

namespace Tavelo
{

using Level = SystemCheck::Level;

namespace
{

constexpr qint64 bytesPerGB = 0x40000000; // a binary gigabyte
constexpr qint64 comfortableFreeGB = 5;

SystemCheck check(const QString &name, Level level, const QString &detail)
{
    return {.name = name, .level = level, .detail = detail};
}

} // namespace

QString levelWord(Level level)
{
    switch (level) {
    case Level::ok:
        return QStringLiteral("OK");
    case Level::warn:
        return QStringLiteral("WARN");
    case Level::fail:
        break;
    }
    return QStringLiteral("FAIL");
}

QString logLine(const SystemCheck &check)
{
    return QStringLiteral("CHECK ") + levelWord(check.level) + QStringLiteral(": ") + check.name +
           QStringLiteral(" - ") + check.detail;
}

SystemChecks::SystemChecks(PlatformServices services, const CommandRunner &runner, const ItemStatus &itemStatus)
    : m_services(std::move(services)), m_runner(runner), m_itemStatus(itemStatus)
{
}

QList<SystemCheck> SystemChecks::systemChecks() const
{
    const Compatibility compatibility = macOSCompatibility();
    const QString architecture = architectureLabel();
    const bool architectureFits = architectureIsSupported();
    const std::optional<QString> brew = m_runner.brewPath();
    const bool network = networkAnswers();
    const bool xcodeTools = m_runner.runQuiet({QStringLiteral("/usr/bin/xcode-select"), QStringLiteral("-p")}) == 0;
    const qint64 freeGB = freeDiskGB();
    const bool root = m_services.facts->isRoot();
    const QString user = m_services.facts->environment().value(QStringLiteral("USER"), QStringLiteral("unknown"));

    const auto warnUnless = [](bool good) { return good ? Level::ok : Level::warn; };
    const auto failUnless = [](bool good) { return good ? Level::ok : Level::fail; };
    return {
        check(QStringLiteral("macOS compatibility"), compatibility.level, compatibility.detail),
        check(QStringLiteral("CPU architecture"), failUnless(architectureFits), architecture),
        check(
            QStringLiteral("Homebrew"), warnUnless(brew.has_value()),
            withoutControls(brew.value_or(QStringLiteral("Chưa tìm thấy brew. Cài từ ") + Endpoints::homebrewSiteURL))),
        check(QStringLiteral("Internet connection"), warnUnless(network),
              (network ? QStringLiteral("Có thể phân giải %1.") : QStringLiteral("Không phân giải được %1."))
                  .arg(Endpoints::dnsProbeHost)),
        check(QStringLiteral("Xcode Command Line Tools"), warnUnless(xcodeTools),
              xcodeTools ? QStringLiteral("Đã có xcode-select.")
                         : QStringLiteral("Không bắt buộc để mở app. Chỉ có thể cần khi Homebrew phải build formula từ "
                                          "source.")),
        check(QStringLiteral("Dung lượng trống"), failUnless(freeGB >= comfortableFreeGB),
              QStringLiteral("%1GB trống trên /.").arg(freeGB)),
        check(QStringLiteral("user mode"), warnUnless(!root),
              root ? QStringLiteral("Không nên chạy Homebrew GUI app bằng root.")
                   : QStringLiteral("User: ") + withoutControls(user)),
        installedCheck(QStringLiteral("LibreOffice"), QStringLiteral("libreoffice")),
        installedCheck(QStringLiteral("ONLYOFFICE"), QStringLiteral("onlyoffice")),
    };
}

SystemChecks::Compatibility SystemChecks::macOSCompatibility() const
{
    const QString version = macOSVersionString();
    const int major = m_services.facts->osVersion().major;
    if (major >= 13)
        return {Level::ok, QStringLiteral("macOS %1.").arg(version)};
    if (major == 12)
        return {Level::warn, QStringLiteral("macOS %1 legacy. Homebrew/app cask có thể thiếu package.").arg(version)};
    return {Level::fail, QStringLiteral("macOS %1 quá cũ. Target tối thiểu: macOS 13.").arg(version)};
}

QString SystemChecks::macOSVersionString() const
{
    const OSVersion version = m_services.facts->osVersion();
    return QStringLiteral("%1.%2.%3").arg(version.major).arg(version.minor).arg(version.patch);
}

QString SystemChecks::architectureLabel() const
{
    return m_services.facts->machineName();
}

bool SystemChecks::architectureIsSupported() const
{
    const QString label = architectureLabel();
    return label == u"arm64" || label == u"x86_64";
}

qint64 SystemChecks::freeDiskGB() const
{
    return m_services.files->freeBytes(QStringLiteral("/")).value_or(0) / bytesPerGB;
}

bool SystemChecks::networkAnswers() const
{
    return m_services.facts->resolves(Endpoints::dnsProbeHost);
}

SystemCheck SystemChecks::installedCheck(const QString &name, const QString &itemID) const
{
    const QList<AppItem> &items = Catalog::items();
    const auto item =
        std::find_if(items.cbegin(), items.cend(), [&](const AppItem &each) { return each.id == itemID; });
    const bool installed = item != items.cend() && m_itemStatus.status(*item) == InstallStatus::installed;
    return check(name, installed ? Level::ok : Level::warn,
                 installed ? QStringLiteral("Đã cài.") : QStringLiteral("Chưa cài."));
}

} // namespace Tavelo
