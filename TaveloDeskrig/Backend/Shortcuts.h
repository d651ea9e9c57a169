#pragma once

#include "AppItem.h"
#include "AppRuntime.h"
#include "OperationLog.h"
#include "PlatformServices.h"

#include <QString>

namespace Tavelo
{

/// Web applications as `.webloc` files, which the Finder opens in the browser, in a folder of the program's own.
class Shortcuts
{
public:
    /// `log` must outlive it.
    Shortcuts(PlatformServices services, const AppRuntime &runtime, const OperationLog &log);

    /// The path of the shortcut's file, which need not exist.
    QString path(const ShortcutSpec &shortcut) const;
    bool exists(const ShortcutSpec &shortcut) const;

    /// Writes the file, in place of one that is there. False for an item without a shortcut and for a failed write.
    bool createShortcut(const AppItem &item) const;

    /// Removes the file; one that is not there is a success. False for an item without a shortcut and for a failed
    /// removal.
    bool removeShortcut(const AppItem &item) const;

private:
    PlatformServices m_services;
    AppRuntime m_runtime;
    const OperationLog &m_log;
};

} // namespace Tavelo
