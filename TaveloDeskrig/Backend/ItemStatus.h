#pragma once

#include "AppItem.h"
#include "AppRuntime.h"
#include "CommandRunner.h"
#include "DefaultApps.h"
#include "DirectInstaller.h"
#include "Homebrew.h"
#include "LanguageKit.h"
#include "PlatformServices.h"
#include "Shortcuts.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <QString>

#include <functional>

namespace Tavelo
{

/// Whether catalog items are on the Mac. The answers are `missing`, `installed` and `blocked`; whatever cannot be found
/// out reads as `missing`. Every call looks afresh, and blocks on tools.
class ItemStatus
{
public:
    /// The collaborators must outlive it.
    ItemStatus(PlatformServices services, const AppRuntime &runtime, const CommandRunner &runner,
               const Homebrew &homebrew, const DirectInstaller &directInstaller, const LanguageKit &languageKit,
               const Shortcuts &shortcuts, const DefaultApps &defaultApps);

    /// The dear and exact form for one item: Homebrew is asked package by package.
    InstallStatus status(const AppItem &item) const;

    /// The cheap form for a whole list, by item id: Homebrew is asked twice in all. Agrees with `status`.
    QHash<QString, InstallStatus> statuses(const QList<AppItem> &items) const;

    /// The catalog's items without duplicates, in order, as text for a report: `item_id`, `name`, `group_key`, `kind`,
    /// `status`.
    QList<QMap<QString, QString>> installStatusSnapshot() const;

    /// The first of the item's application paths that exists, as the catalog writes it; nothing if none does.
    std::optional<QString> firstExistingAppPath(const AppItem &item) const;

private:
    using IsListed = std::function<bool(const QString &name, bool cask)>;

    InstallStatus status(const AppItem &item, const IsListed &isListed) const;
    bool isInstalled(const AppItem &item, const IsListed &isListed) const;
    bool commandExists(const QString &command) const;

    PlatformServices m_services;
    AppRuntime m_runtime;
    const CommandRunner &m_runner;
    const Homebrew &m_homebrew;
    const DirectInstaller &m_directInstaller;
    const LanguageKit &m_languageKit;
    const Shortcuts &m_shortcuts;
    const DefaultApps &m_defaultApps;
};

} // namespace Tavelo
