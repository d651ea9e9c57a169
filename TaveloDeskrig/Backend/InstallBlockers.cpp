#include "InstallBlockers.h"

#include "Endpoints.h"
#include "SystemFacts.h"

#include <algorithm>

namespace Tavelo
{

namespace
{

bool needsHomebrew(const AppItem &item)
{
    switch (item.kind) {
    case AppKind::formula:
    case AppKind::cask:
    case AppKind::bundle:
    case AppKind::mime: // for the tool that sets the default applications
        return true;
    default:
        return false;
    }
}

bool needsDisk(const AppItem &item)
{
    switch (item.kind) {
    case AppKind::direct:
    case AppKind::formula:
    case AppKind::cask:
    case AppKind::bundle:
        return true;
    default:
        return false;
    }
}

/// In GiB. One item passes where the readiness table already warns, since it informs and this refuses.
qint64 requiredDiskGB(qsizetype itemsOnDisk)
{
    if (itemsOnDisk == 0)
        return 0;
    return itemsOnDisk == 1 ? 1 : 5;
}

} // namespace

InstallBlockers::InstallBlockers(PlatformServices services, const CommandRunner &runner, const SystemChecks &checks)
    : m_services(std::move(services)), m_runner(runner), m_checks(checks)
{
}

QStringList InstallBlockers::installBlockers(const QList<AppItem> &items) const
{
    QStringList blockers;
    const SystemChecks::Compatibility compatibility = m_checks.macOSCompatibility();
    if (compatibility.level == SystemCheck::Level::fail)
        blockers.append(compatibility.detail);
    if (!m_checks.architectureIsSupported())
        blockers.append(
            QStringLiteral("Chỉ hỗ trợ CPU arm64 hoặc x86_64. Máy hiện tại: %1.").arg(m_checks.architectureLabel()));

    const int major = m_services.facts->osVersion().major;
    for (const AppItem &item : items) {
        if (item.minimumMacOSMajor && *item.minimumMacOSMajor > major)
            blockers.append(QStringLiteral("%1 yêu cầu macOS %2 trở lên.")
                                .arg(item.macName, QString::number(*item.minimumMacOSMajor)));
    }

    if (std::any_of(items.cbegin(), items.cend(), needsHomebrew)) {
        if (!m_runner.brewPath())
            blockers.append(
                QStringLiteral("Chưa có Homebrew. Cài Homebrew từ %1 rồi chạy lại.").arg(Endpoints::homebrewSiteURL));
        if (!m_checks.networkAnswers())
            blockers.append(
                QStringLiteral("Không phân giải được %1. Kiểm tra Internet/DNS trước khi cài bằng Homebrew.")
                    .arg(Endpoints::dnsProbeHost));
    }

    const qint64 required = requiredDiskGB(std::count_if(items.cbegin(), items.cend(), needsDisk));
    const qint64 free = m_checks.freeDiskGB();
    if (free < required)
        blockers.append(QStringLiteral("Cần tối thiểu %1GB trống trên /. Hiện còn %2GB.").arg(required).arg(free));
    return blockers;
}

} // namespace Tavelo
