#pragma once

#include "AppItem.h"
#include "CommandRunner.h"
#include "OperationLog.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace Tavelo
{

/// Formulae and casks: asked for, installed and removed one by one through the `brew` tool.
class Homebrew
{
public:
    /// Both must outlive it.
    Homebrew(const CommandRunner &runner, const OperationLog &log);

    /// True when Homebrew lists the package as installed. Without Homebrew, false.
    bool brewList(const QString &name, bool cask) const;

    struct Inventory {
        QSet<QString> formulas;
        QSet<QString> casks;
    };
    /// All that Homebrew has installed, in two runs of `brew`; empty sets without Homebrew.
    Inventory installedBrewInventory() const;

    /// Installs each package that is not there yet, in order. A package that fails does not stop the others. True if no
    /// command failed. The progress moves over the band from 0.12 to 0.88.
    bool installBrewPackages(const QStringList &packages, bool cask) const;

    /// The same for packages in the mixed form.
    bool installMixedBrewPackages(const QStringList &packages) const;

    /// Removes each package, from last to first. A package that Homebrew does not know was put there by someone else:
    /// it stays, and counts as a failure. The progress moves over the band from 0.15 to 0.85.
    bool uninstallBrewPackages(const QStringList &packages, bool cask) const;

    /// The same for packages in the mixed form, except that a package that Homebrew does not know is passed over: a
    /// bundle may be partly installed, and its other parts should still go.
    bool uninstallMixedBrewPackages(const QStringList &packages) const;

private:
    enum class Unknown { fails, isPassedOver };

    bool install(const QList<MixedBrewPackage> &packages, bool withLanguage) const;
    bool uninstall(const QList<MixedBrewPackage> &packages, Unknown unknown) const;

    const CommandRunner &m_runner;
    const OperationLog &m_log;
};

} // namespace Tavelo
