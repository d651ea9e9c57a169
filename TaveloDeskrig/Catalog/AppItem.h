#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace Tavelo
{

/// How an item reaches the Mac. The kind decides every operation on the item; the raw value is what plans and keys
/// print.
enum class AppKind {
    direct,   ///< An application downloaded from its vendor and checked against pinned signing data.
    formula,  ///< Homebrew formulae, all named in `packages`.
    cask,     ///< Homebrew casks, all named in `packages`.
    bundle,   ///< Formulae and casks together, in the mixed package form (see `parseMixedBrewPackage`).
    shortcut, ///< A generated `.webloc` file.
    builtin,  ///< A feature that macOS already has; the item only opens it.
    mime,     ///< The setting of default applications.
    blocked,  ///< A Linux item without a supported macOS replacement: shown, never installed.
};

/// State of an item on this Mac. Detection gives `missing`, `installed` and `blocked`; the other two are put on an item
/// by the interface during and after an operation.
enum class InstallStatus { missing, installed, working, failed, blocked };

/// How a vendor's download is unpacked.
enum class InstallerType { dmg, zip };

/// The case name as text: "direct", "formula" …
QString rawValue(AppKind kind);
QString rawValue(InstallStatus status);
QString rawValue(InstallerType type);

/// The kind with that raw value, compared exactly; nothing for any other text.
std::optional<AppKind> appKind(QStringView rawValue);

struct ShortcutSpec {
    QString fileName; ///< With the `.webloc` extension.
    QString name;     ///< Display name.
    QString url;      ///< The address that the shortcut opens.

    bool operator==(const ShortcutSpec &) const = default;
};

/// The identity that a vendor's application must have, and where it may come from.
struct DirectInstallerSpec {
    QString url;      ///< Vendor download address.
    QString fileName; ///< Name for the downloaded file in the cache.
    InstallerType installerType = InstallerType::dmg;
    QString appBundleName; ///< Bundle inside the download, with `.app`.
    QString expectedBundleID;
    QString expectedTeamID;
    QSet<QString> allowedDownloadHosts; ///< Lower-case hosts that the download and its redirects may touch.

    bool operator==(const DirectInstallerSpec &) const = default;
};

/// One entry of the catalog: what it was called on Linux, what stands for it on macOS, and how the Mac gets it.
/// A field with a default may be left out of an item; leaving out any other is a compiler warning.
struct AppItem {
    QString id;                   ///< Unique key.
    QString linuxName;            ///< Name of the Linux entry that the item maps.
    QString macName;              ///< Name on screen, in plans and in log lines.
    QString group;                ///< Primary group id: `office`, `microsoft`, `printer`, `meeting` or `media`.
    QStringList extraGroups = {}; ///< Further group ids.
    AppKind kind = AppKind::blocked;
    /// Homebrew names, as `kind` reads them; of kind `mime`, the tool that the setting needs.
    QStringList packages = {};
    QString description;                                     ///< One sentence, in Vietnamese.
    QString replacementNote;                                 ///< Why the item stands for the Linux one, in Vietnamese.
    QString symbol;                                          ///< System symbol name of the icon.
    std::optional<ShortcutSpec> shortcut = {};               ///< Present for kind `shortcut` only.
    std::optional<DirectInstallerSpec> directInstaller = {}; ///< Present for kind `direct` only.
    /// Candidate application paths, any one of which will do; a leading `~` means the user's home.
    QStringList appPaths = {};
    /// Command names or paths, looked up as a command line would. A `bundle` needs all of them, a `formula` or
    /// `builtin` any one.
    QStringList commands = {};
    bool builtinReady = false;                 ///< A built-in item that counts as present without any test.
    std::optional<int> minimumMacOSMajor = {}; ///< The lowest major version that the item can be installed on.

    /// True when the id is the item's `group` or one of its `extraGroups`.
    bool belongsTo(const QString &groupID) const;

    /// Whether there is something to open once the item is installed. A row's button then opens it, and says so.
    bool canBeOpened() const;

    bool operator==(const AppItem &) const = default;
};

size_t qHash(const AppItem &item, size_t seed = 0);

/// A group as the sidebar shows it. The one for the whole list has the id `all`, which no item carries.
struct CatalogGroup {
    QString id;
    QString label;
    QString symbol;

    bool operator==(const CatalogGroup &) const = default;
};

/// A step of an operation. Without a fraction the step has no known position.
struct InstallProgressUpdate {
    QString message;
    std::optional<double> fraction; ///< 0 to 1.

    bool operator==(const InstallProgressUpdate &) const = default;
};

/// A Homebrew package of the mixed form, read from an item's `packages`.
struct MixedBrewPackage {
    QString name;
    bool cask = false;

    bool operator==(const MixedBrewPackage &) const = default;
};

/// Reads "cask:NAME" and "formula:NAME" (prefixes in exact case); any other text is the bare name of a formula.
MixedBrewPackage parseMixedBrewPackage(const QString &entry);

} // namespace Tavelo
