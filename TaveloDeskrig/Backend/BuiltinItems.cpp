#include "BuiltinItems.h"

#include <QHash>
#include <QSet>
#include <QStringList>

namespace Tavelo
{

namespace
{

/// System tools that can harm data; no substitute is opened for them.
const QSet<QString> &blockedBuiltinIDs()
{
    static const QSet<QString> ids = {QStringLiteral("deja-dup"), QStringLiteral("rclone")};
    return ids;
}

/// What follows `/usr/bin/open`, by item id; empty for an item that there is nothing to open for.
QStringList openArguments(const QString &id)
{
    static const QString application = QStringLiteral("-a");
    static const QHash<QString, QStringList> table = {
        {QStringLiteral("ibus-unikey"),
         {QStringLiteral("x-apple.systempreferences:com.apple.Keyboard-Settings.extension")}},
        {QStringLiteral("printer-drivers"),
         {QStringLiteral("x-apple.systempreferences:com.apple.Print-Scan-Settings.extension")}},
        {QStringLiteral("scanner-tools"), {application, QStringLiteral("Image Capture")}},
        {QStringLiteral("evince"), {application, QStringLiteral("Preview")}},
        {QStringLiteral("flameshot"), {application, QStringLiteral("Screenshot")}},
        {QStringLiteral("gnome-disks"), {application, QStringLiteral("Disk Utility")}},
    };
    return table.value(id);
}

} // namespace

BuiltinItems::BuiltinItems(const CommandRunner &runner, const ItemStatus &itemStatus, const OperationLog &log)
    : m_runner(runner), m_itemStatus(itemStatus), m_log(log)
{
}

bool BuiltinItems::openBuiltinItem(const AppItem &item) const
{
    if (blockedBuiltinIDs().contains(item.id)) {
        m_log.log(
            QStringLiteral("Bỏ qua %1: Tavelo Deskrig không mở công cụ hệ thống có rủi ro dữ liệu.").arg(item.macName));
        m_log.progress(QStringLiteral("Đã chặn mục hệ thống có rủi ro dữ liệu: ") + item.macName, 1.0);
        return false;
    }
    m_log.progress(QStringLiteral("Đang mở mục macOS ") + item.macName, 0.55);
    const auto isInstalled = [&] { return m_itemStatus.status(item) == InstallStatus::installed; };

    const QStringList arguments = openArguments(item.id);
    if (arguments.isEmpty()) {
        m_log.log(QStringLiteral("%1 là tính năng có sẵn của macOS.").arg(item.macName));
        return item.builtinReady || isInstalled();
    }
    const QStringList vector = QStringList(QStringLiteral("/usr/bin/open")) + arguments;
    return m_runner.runCommand(vector, vector.join(u' ')) == 0 || isInstalled();
}

} // namespace Tavelo
