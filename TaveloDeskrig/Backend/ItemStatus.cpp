#include "ItemStatus.h"

#include "Catalog.h"
#include "FileManager.h"
#include "SystemFacts.h"

#include <algorithm>

namespace Tavelo
{

ItemStatus::ItemStatus(PlatformServices services, const AppRuntime &runtime, const CommandRunner &runner,
                       const Homebrew &homebrew, const DirectInstaller &directInstaller, const LanguageKit &languageKit,
                       const Shortcuts &shortcuts, const DefaultApps &defaultApps)
    : m_services(std::move(services)), m_runtime(runtime), m_runner(runner), m_homebrew(homebrew),
      m_directInstaller(directInstaller), m_languageKit(languageKit), m_shortcuts(shortcuts), m_defaultApps(defaultApps)
{
}

InstallStatus ItemStatus::status(const AppItem &item) const
{
    return status(item, [this](const QString &name, bool cask) { return m_homebrew.brewList(name, cask); });
}

QHash<QString, InstallStatus> ItemStatus::statuses(const QList<AppItem> &items) const
{
    const Homebrew::Inventory inventory = m_homebrew.installedBrewInventory();
    const auto isListed = [&](const QString &name, bool cask) {
        return (cask ? inventory.casks : inventory.formulas).contains(name);
    };
    QHash<QString, InstallStatus> result;
    for (const AppItem &item : items)
        result.insert(item.id, status(item, isListed));
    return result;
}

QList<QMap<QString, QString>> ItemStatus::installStatusSnapshot() const
{
    QList<QMap<QString, QString>> snapshot;
    const QList<AppItem> items = Catalog::uniqueInstallItems(Catalog::items());
    for (const AppItem &item : items) {
        snapshot.append({{QStringLiteral("item_id"), item.id},
                         {QStringLiteral("name"), item.macName},
                         {QStringLiteral("group_key"), item.group},
                         {QStringLiteral("kind"), rawValue(item.kind)},
                         {QStringLiteral("status"), rawValue(status(item))}});
    }
    return snapshot;
}

std::optional<QString> ItemStatus::firstExistingAppPath(const AppItem &item) const
{
    const auto path = std::find_if(item.appPaths.cbegin(), item.appPaths.cend(), [&](const QString &each) {
        return m_services.files->exists(m_runtime.expandingTilde(each));
    });
    return path == item.appPaths.cend() ? std::nullopt : std::optional(*path);
}

InstallStatus ItemStatus::status(const AppItem &item, const IsListed &isListed) const
{
    if (item.minimumMacOSMajor && m_services.facts->osVersion().major < *item.minimumMacOSMajor)
        return InstallStatus::blocked;
    if (item.kind == AppKind::blocked)
        return InstallStatus::blocked;
    return isInstalled(item, isListed) ? InstallStatus::installed : InstallStatus::missing;
}

bool ItemStatus::isInstalled(const AppItem &item, const IsListed &isListed) const
{
    const auto appExists = [&] { return firstExistingAppPath(item).has_value(); };
    const auto isCommand = [&](const QString &command) { return commandExists(command); };
    const auto allListed = [&](bool cask) {
        return std::all_of(item.packages.cbegin(), item.packages.cend(),
                           [&](const QString &name) { return isListed(name, cask); });
    };

    switch (item.kind) {
    case AppKind::blocked:
        return false;
    case AppKind::mime:
        return m_defaultApps.onlyofficeMimeIsDefault();
    case AppKind::builtin:
        return item.builtinReady || appExists() || std::any_of(item.commands.cbegin(), item.commands.cend(), isCommand);
    case AppKind::shortcut:
        return item.shortcut && m_shortcuts.exists(*item.shortcut);
    case AppKind::direct:
        // A bundle that is merely there does not count.
        return item.directInstaller &&
               std::any_of(item.appPaths.cbegin(), item.appPaths.cend(), [&](const QString &entry) {
                   const QString path = m_runtime.expandingTilde(entry);
                   return m_services.files->exists(path) &&
                          m_directInstaller.verifyDirectApp(path, *item.directInstaller);
               });
    case AppKind::formula:
        // One of the commands is enough: they are alternatives.
        return (item.commands.isEmpty() || std::any_of(item.commands.cbegin(), item.commands.cend(), isCommand)) &&
               allListed(false);
    case AppKind::cask:
        if (item.id == u"libreoffice") // without the dictionary it is not this item
            return appExists() && allListed(true) && m_languageKit.libreOfficeVietnameseDictionaryInstalled();
        return (item.appPaths.isEmpty() || appExists()) && allListed(true);
    case AppKind::bundle:
        // All of the commands are needed: each stands for a part of the bundle.
        return std::all_of(item.packages.cbegin(), item.packages.cend(),
                           [&](const QString &entry) {
                               const MixedBrewPackage package = parseMixedBrewPackage(entry);
                               return isListed(package.name, package.cask);
                           }) &&
               std::all_of(item.commands.cbegin(), item.commands.cend(), isCommand) &&
               (item.appPaths.isEmpty() || appExists());
    }
    return false;
}

bool ItemStatus::commandExists(const QString &command) const
{
    return m_runner.commandPath(command).has_value();
}

} // namespace Tavelo
