#include "Shortcuts.h"

#include "FileManager.h"
#include "PropertyList.h"

namespace Tavelo
{

Shortcuts::Shortcuts(PlatformServices services, const AppRuntime &runtime, const OperationLog &log)
    : m_services(std::move(services)), m_runtime(runtime), m_log(log)
{
}

QString Shortcuts::path(const ShortcutSpec &shortcut) const
{
    return m_runtime.shortcutDir() + u'/' + shortcut.fileName;
}

bool Shortcuts::exists(const ShortcutSpec &shortcut) const
{
    return m_services.files->exists(path(shortcut));
}

bool Shortcuts::createShortcut(const AppItem &item) const
{
    if (!item.shortcut)
        return false;
    m_log.progress(QStringLiteral("Đang tạo shortcut ") + item.macName, 0.5);
    const QString file = path(*item.shortcut);
    const QByteArray content = PropertyList::xml(QVariantMap{{QStringLiteral("URL"), item.shortcut->url}});
    FileError error;
    if (!m_services.files->createFolder(m_runtime.shortcutDir(), 0777, &error) ||
        !m_services.files->writeAtomically(file, content, 0644, &error)) {
        m_log.log(QStringLiteral("Không tạo được shortcut %1: ").arg(item.macName) + error.text);
        return false;
    }
    m_log.log(QStringLiteral("Đã tạo shortcut: ") + file);
    return true;
}

bool Shortcuts::removeShortcut(const AppItem &item) const
{
    if (!item.shortcut)
        return false;
    const QString file = path(*item.shortcut);
    if (!m_services.files->exists(file)) {
        m_log.log(QStringLiteral("Shortcut không còn tồn tại: ") + file);
        return true;
    }
    m_log.progress(QStringLiteral("Đang xoá shortcut ") + item.macName, 0.55);
    FileError error;
    if (!m_services.files->remove(file, &error)) {
        m_log.log(QStringLiteral("Không xoá được shortcut %1: ").arg(item.macName) + error.text);
        return false;
    }
    m_log.log(QStringLiteral("Đã xoá shortcut: ") + file);
    return true;
}

} // namespace Tavelo
