#pragma once

#include "AppLanguage.h"
#include "AppRuntime.h"
#include "CommandRunner.h"
#include "InstalledMacApplication.h"
#include "InventoryScan.h"
#include "ItemStatus.h"
#include "OperationLog.h"
#include "PlatformServices.h"
#include "SystemChecks.h"
#include "TextReport.h"

#include <QList>
#include <QString>

#include <optional>

namespace Tavelo
{

struct FileError;

/// Gathers the facts of a report and stores it. Blocks on the Mac's tools.
class ReportWriter
{
public:
    /// The collaborators must outlive it.
    ReportWriter(PlatformServices services, const AppRuntime &runtime, const CommandRunner &runner,
                 const OperationLog &log, const SystemChecks &checks, const ItemStatus &itemStatus,
                 const InventoryScan &inventory);

    /// Writes the report to `AppRuntime::reportFile` and gives its path. The file has mode 0600 and its folder mode
    /// 0700; a folder that was wider before is narrowed where this user may do so. Checks and applications that are not
    /// given are gathered here; empty lists count as given.
    ///
    /// Nothing where it fails: the folder cannot be made, and then nothing is gathered; the file cannot be written; or
    /// the file's mode cannot be set, and then the report is there all the same. Success is logged, failure is not.
    std::optional<QString> writeReport(const std::optional<QList<SystemCheck>> &checks,
                                       const std::optional<QList<InstalledMacApplication>> &additionalApplications,
                                       AppLanguage language, FileError *error = nullptr) const;

private:
    TextReportFacts facts(const std::optional<QList<SystemCheck>> &checks,
                          const std::optional<QList<InstalledMacApplication>> &additionalApplications) const;

    PlatformServices m_services;
    AppRuntime m_runtime;
    const CommandRunner &m_runner;
    const OperationLog &m_log;
    const SystemChecks &m_checks;
    const ItemStatus &m_itemStatus;
    const InventoryScan &m_inventory;
};

} // namespace Tavelo
