#pragma once

#include "AppItem.h"
#include "BuiltinItems.h"
#include "CommandRunner.h"
#include "DefaultApps.h"
#include "DirectInstaller.h"
#include "Homebrew.h"
#include "InstallBlockers.h"
#include "ItemStatus.h"
#include "LanguageKit.h"
#include "OperationLog.h"
#include "Shortcuts.h"

namespace Tavelo
{

/// Install, uninstall and open of one catalog item, each by the item's kind, told through log and progress.
///
/// A step's own word is not enough: an item that does not read as installed (or as missing, after a removal) has
/// failed, and so has one whose step failed, however it reads. Nothing is rolled back; a retry does what is left.
class ItemOperations
{
public:
    /// All must outlive it.
    struct Collaborators {
        const OperationLog &log;
        const CommandRunner &runner;
        const ItemStatus &itemStatus;
        const InstallBlockers &blockers;
        const Homebrew &homebrew;
        const DirectInstaller &directInstaller;
        const LanguageKit &languageKit;
        const Shortcuts &shortcuts;
        const DefaultApps &defaultApps;
        const BuiltinItems &builtinItems;
    };
    explicit ItemOperations(const Collaborators &collaborators);

    /// True if the item is installed, or is of kind `blocked`, which there is nothing to do for.
    bool install(const AppItem &item) const;

    /// True if the item is gone, or is a part of macOS, which cannot go.
    bool uninstall(const AppItem &item) const;

    /// True if something was opened for the item.
    bool open(const AppItem &item) const;

private:
    bool installStep(const AppItem &item) const;
    bool uninstallStep(const AppItem &item) const;
    bool openTarget(const QString &target) const;

    Collaborators m_with;
};

} // namespace Tavelo
