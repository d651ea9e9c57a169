#include "ItemOperations.h"

namespace Tavelo
{

ItemOperations::ItemOperations(const Collaborators &collaborators) : m_with(collaborators) {}

bool ItemOperations::install(const AppItem &item) const
{
    const OperationLog &log = m_with.log;
    log.log(QStringLiteral("Bắt đầu cài: %1 [%2]").arg(item.macName, item.id));
    log.progress(QStringLiteral("Đang chuẩn bị cài ") + item.macName, 0);
    if (item.kind == AppKind::blocked) {
        log.log(QStringLiteral("Bỏ qua %1: mục này không được hỗ trợ trong catalog macOS.").arg(item.macName));
        log.progress(QStringLiteral("Đã bỏ qua mục không hỗ trợ: ") + item.macName, 1);
        return true;
    }
    const QStringList blockers = m_with.blockers.installBlockers({item});
    if (!blockers.isEmpty()) {
        for (const QString &blocker : blockers)
            log.log(QStringLiteral("BLOCK: ") + blocker);
        log.progress(QStringLiteral("Chưa thể cài %1. Cần xử lý kiểm tra hệ thống.").arg(item.macName), 1);
        return false;
    }

    bool succeeded = installStep(item);
    const InstallStatus status = m_with.itemStatus.status(item);
    if (succeeded && status != InstallStatus::installed) {
        log.log(QStringLiteral("Lệnh đã chạy xong nhưng kiểm tra trạng thái sau cài chưa đạt."));
        succeeded = false;
    }
    log.log((succeeded ? QStringLiteral("Thành công: ") : QStringLiteral("Thất bại: ")) + item.macName);
    log.progress((succeeded ? QStringLiteral("Đã cài xong ") : QStringLiteral("Cài chưa thành công ")) + item.macName,
                 1);
    return succeeded;
}

bool ItemOperations::installStep(const AppItem &item) const
{
    switch (item.kind) {
    case AppKind::direct:
        return m_with.directInstaller.installDirectApp(item);
    case AppKind::formula:
        return m_with.homebrew.installBrewPackages(item.packages, false);
    case AppKind::cask:
        return m_with.homebrew.installBrewPackages(item.packages, true) &&
               (item.id != u"libreoffice" || m_with.languageKit.installLibreOfficeVietnameseDictionary());
    case AppKind::bundle:
        return m_with.homebrew.installMixedBrewPackages(item.packages);
    case AppKind::shortcut:
        return m_with.shortcuts.createShortcut(item);
    case AppKind::builtin:
        return m_with.builtinItems.openBuiltinItem(item);
    case AppKind::mime:
        return m_with.defaultApps.setMimeDefaults();
    case AppKind::blocked:
        break;
    }
    return false;
}

bool ItemOperations::uninstall(const AppItem &item) const
{
    const OperationLog &log = m_with.log;
    log.log(QStringLiteral("Bắt đầu gỡ bỏ: %1 [%2]").arg(item.macName, item.id));
    log.progress(QStringLiteral("Đang chuẩn bị gỡ bỏ ") + item.macName, 0);
    if (item.kind == AppKind::builtin || item.kind == AppKind::blocked) {
        log.log(QStringLiteral("%1 là tính năng có sẵn của macOS nên không thể gỡ khỏi máy bằng app này.")
                    .arg(item.macName));
        m_with.builtinItems.openBuiltinItem(item);
        log.progress(QStringLiteral("%1 là tính năng có sẵn của macOS.").arg(item.macName), 1);
        return true;
    }

    bool succeeded = uninstallStep(item);
    const InstallStatus status = m_with.itemStatus.status(item);
    if (succeeded && status != InstallStatus::missing) {
        log.log(QStringLiteral("Lệnh gỡ đã chạy xong nhưng kiểm tra trạng thái sau gỡ chưa đạt."));
        succeeded = false;
    }
    log.log((succeeded ? QStringLiteral("Đã gỡ bỏ: ") : QStringLiteral("Gỡ bỏ thất bại: ")) + item.macName);
    log.progress((succeeded ? QStringLiteral("Đã gỡ bỏ ") : QStringLiteral("Gỡ bỏ chưa thành công ")) + item.macName,
                 1);
    return succeeded;
}

bool ItemOperations::uninstallStep(const AppItem &item) const
{
    switch (item.kind) {
    case AppKind::direct:
        return m_with.directInstaller.removeDirectApp(item);
    case AppKind::formula:
        return m_with.homebrew.uninstallBrewPackages(item.packages, false);
    case AppKind::cask:
        return m_with.homebrew.uninstallBrewPackages(item.packages, true);
    case AppKind::bundle:
        return m_with.homebrew.uninstallMixedBrewPackages(item.packages);
    case AppKind::shortcut:
        return m_with.shortcuts.removeShortcut(item);
    case AppKind::mime:
        return m_with.defaultApps.resetMimeDefaults();
    case AppKind::builtin:
    case AppKind::blocked:
        break;
    }
    return false;
}

bool ItemOperations::open(const AppItem &item) const
{
    const OperationLog &log = m_with.log;
    log.log(QStringLiteral("Mở: %1 [%2]").arg(item.macName, item.id));
    const auto nothingToOpen = [&] {
        log.log(
            QStringLiteral("%1 không có app UI để mở trực tiếp. Dùng Gỡ bỏ nếu muốn xoá khỏi máy.").arg(item.macName));
        return false;
    };

    switch (item.kind) {
    case AppKind::direct:
    case AppKind::cask:
    case AppKind::bundle:
        if (const std::optional<QString> path = m_with.itemStatus.firstExistingAppPath(item))
            return openTarget(*path);
        log.log(QStringLiteral("Không tìm thấy app path để mở %1.").arg(item.macName));
        return false;
    case AppKind::formula:
        if (const std::optional<QString> path = m_with.itemStatus.firstExistingAppPath(item))
            return openTarget(*path);
        return nothingToOpen();
    case AppKind::mime:
        return nothingToOpen();
    case AppKind::shortcut:
        if (!item.shortcut)
            return false;
        return openTarget(m_with.shortcuts.exists(*item.shortcut) ? m_with.shortcuts.path(*item.shortcut)
                                                                  : item.shortcut->url);
    case AppKind::builtin:
        return m_with.builtinItems.openBuiltinItem(item);
    case AppKind::blocked:
        log.log(QStringLiteral("%1 không được hỗ trợ trên macOS.").arg(item.macName));
        return false;
    }
    return false;
}

bool ItemOperations::openTarget(const QString &target) const
{
    const QString opener = QStringLiteral("/usr/bin/open");
    return m_with.runner.runCommand({opener, target}, opener + u' ' + target) == 0;
}

} // namespace Tavelo
