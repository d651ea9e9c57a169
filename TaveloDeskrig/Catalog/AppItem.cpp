#include "AppItem.h"

#include <QHashFunctions>

#include <array>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

constexpr std::array allAppKinds{AppKind::direct,   AppKind::formula, AppKind::cask, AppKind::bundle,
                                 AppKind::shortcut, AppKind::builtin, AppKind::mime, AppKind::blocked};

size_t qHash(const ShortcutSpec &spec, size_t seed)
{
    return qHashMulti(seed, spec.fileName, spec.name, spec.url);
}

size_t qHash(const DirectInstallerSpec &spec, size_t seed)
{
    return qHashMulti(seed, spec.url, spec.fileName, static_cast<int>(spec.installerType), spec.appBundleName,
                      spec.expectedBundleID, spec.expectedTeamID, spec.allowedDownloadHosts);
}

} // namespace

QString rawValue(AppKind kind)
{
    switch (kind) {
    case AppKind::direct:
        return u"direct"_s;
    case AppKind::formula:
        return u"formula"_s;
    case AppKind::cask:
        return u"cask"_s;
    case AppKind::bundle:
        return u"bundle"_s;
    case AppKind::shortcut:
        return u"shortcut"_s;
    case AppKind::builtin:
        return u"builtin"_s;
    case AppKind::mime:
        return u"mime"_s;
    case AppKind::blocked:
        return u"blocked"_s;
    }
    Q_UNREACHABLE();
}

QString rawValue(InstallStatus status)
{
    switch (status) {
    case InstallStatus::missing:
        return u"missing"_s;
    case InstallStatus::installed:
        return u"installed"_s;
    case InstallStatus::working:
        return u"working"_s;
    case InstallStatus::failed:
        return u"failed"_s;
    case InstallStatus::blocked:
        return u"blocked"_s;
    }
    Q_UNREACHABLE();
}

QString rawValue(InstallerType type)
{
    switch (type) {
    case InstallerType::dmg:
        return u"dmg"_s;
    case InstallerType::zip:
        return u"zip"_s;
    }
    Q_UNREACHABLE();
}

std::optional<AppKind> appKind(QStringView rawValue)
{
    for (const AppKind kind : allAppKinds) {
        if (Tavelo::rawValue(kind) == rawValue)
            return kind;
    }
    return std::nullopt;
}

bool AppItem::belongsTo(const QString &groupID) const
{
    return group == groupID || extraGroups.contains(groupID);
}

bool AppItem::canBeOpened() const
{
    switch (kind) {
    case AppKind::shortcut:
    case AppKind::builtin:
        return true;
    case AppKind::direct:
    case AppKind::formula:
    case AppKind::cask:
    case AppKind::bundle:
        return !appPaths.isEmpty();
    case AppKind::mime:
    case AppKind::blocked:
        return false;
    }
    Q_UNREACHABLE();
}

size_t qHash(const AppItem &item, size_t seed)
{
    seed = qHashMulti(seed, item.id, item.linuxName, item.macName, item.group, item.extraGroups,
                      static_cast<int>(item.kind), item.packages, item.description, item.replacementNote, item.symbol,
                      item.appPaths, item.commands, item.builtinReady, item.minimumMacOSMajor.has_value(),
                      item.minimumMacOSMajor.value_or(0));
    if (item.shortcut)
        seed = qHash(*item.shortcut, seed);
    if (item.directInstaller)
        seed = qHash(*item.directInstaller, seed);
    return seed;
}

MixedBrewPackage parseMixedBrewPackage(const QString &entry)
{
    constexpr QStringView caskPrefix = u"cask:";
    constexpr QStringView formulaPrefix = u"formula:";
    if (entry.startsWith(caskPrefix))
        return {.name = entry.sliced(caskPrefix.size()), .cask = true};
    if (entry.startsWith(formulaPrefix))
        return {.name = entry.sliced(formulaPrefix.size()), .cask = false};
    return {.name = entry, .cask = false};
}

} // namespace Tavelo
