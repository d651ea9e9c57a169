#pragma once

#include "AppItem.h"
#include "CommandRunner.h"
#include "ItemStatus.h"
#include "OperationLog.h"

namespace Tavelo
{

/// Items that macOS already has: "installing" one means opening it.
class BuiltinItems
{
public:
    /// All must outlive it.
    BuiltinItems(const CommandRunner &runner, const ItemStatus &itemStatus, const OperationLog &log);

    /// Opens the system's tool or settings panel. When that fails, or there is nothing to open, the result is whether
    /// the item reads as present. Refuses the items whose system tools can harm data.
    bool openBuiltinItem(const AppItem &item) const;

private:
    const CommandRunner &m_runner;
    const ItemStatus &m_itemStatus;
    const OperationLog &m_log;
};

} // namespace Tavelo
