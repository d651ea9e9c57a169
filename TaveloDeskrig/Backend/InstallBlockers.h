#pragma once

#include "AppItem.h"
#include "CommandRunner.h"
#include "PlatformServices.h"
#include "SystemChecks.h"

#include <QList>
#include <QStringList>

namespace Tavelo
{

/// What stands between a plan and its first command.
class InstallBlockers
{
public:
    /// `runner` and `checks` must outlive it.
    InstallBlockers(PlatformServices services, const CommandRunner &runner, const SystemChecks &checks);

    /// The reasons that refuse an install of these items, as Vietnamese sentences in a fixed order; empty when nothing
    /// does. An unfit Mac blocks even an empty list. Blocks on name resolution.
    QStringList installBlockers(const QList<AppItem> &items) const;

private:
    PlatformServices m_services;
    const CommandRunner &m_runner;
    const SystemChecks &m_checks;
};

} // namespace Tavelo
