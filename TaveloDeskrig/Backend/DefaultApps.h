#pragma once

#include "AppRuntime.h"
#include "CommandRunner.h"
#include "Homebrew.h"
#include "OperationLog.h"
#include "PlatformServices.h"

#include <QString>
#include <QStringList>

namespace Tavelo
{

/// ONLYOFFICE as the default application for office documents, asked and set through the `duti` tool.
class DefaultApps
{
public:
    /// `runner`, `homebrew` and `log` must outlive it.
    DefaultApps(PlatformServices services, const AppRuntime &runtime, const CommandRunner &runner,
                const Homebrew &homebrew, const OperationLog &log);

    /// True when ONLYOFFICE is there and `duti` names it as the default for all six kinds of document.
    bool onlyofficeMimeIsDefault() const;

    bool onlyofficeInstalled() const;

    /// True when the command is found, or Homebrew lists its formula.
    bool dutiInstalled() const;

    /// Where ONLYOFFICE may lie, in the order of preference.
    QStringList onlyofficeAppCandidates() const;

    /// The identifier in the first candidate that names one, else the vendor's usual one: it gives a value even with no
    /// application present.
    std::optional<QString> onlyofficeBundleID() const;

    /// Sets the six defaults, installing `duti` first where it is missing, and reads them back a second later. One that
    /// fails does not stop the others. True if all hold.
    bool setMimeDefaults() const;

    /// Takes the six defaults back. True if every command did well and ONLYOFFICE is not the default for all any more.
    /// Fails without `duti`, which it does not install.
    bool resetMimeDefaults() const;

private:
    bool runDutiForEach(const QString &duti, const QString &action, const QString &bundleID,
                        const QString &progressText) const;
    void letLaunchServicesSettle() const;

    PlatformServices m_services;
    AppRuntime m_runtime;
    const CommandRunner &m_runner;
    const Homebrew &m_homebrew;
    const OperationLog &m_log;
};

} // namespace Tavelo
