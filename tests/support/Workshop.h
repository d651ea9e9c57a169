#pragma once

#include "AppItem.h"
#include "AppRuntime.h"
#include "CommandRunner.h"
#include "MacBackend.h"
#include "OperationLog.h"
#include "TemporaryMac.h"

namespace Tavelo
{

/// The backend over a Mac that is furnished already, and what its interface hears.
struct Workshop {
    explicit Workshop(const PlatformServices &on);
    Q_DISABLE_COPY_MOVE(Workshop)

    /// The log lines heard so far, without their time and without those of progress.
    QStringList texts();
    /// The fractions heard so far, as "0 0.12 1", with "-" for none.
    QString fractions();

    PlatformServices services;
    Recorder heard;
    AppRuntime runtime;
    OperationLog log;
    CommandRunner runner;
    MacBackend backend;
};

AppItem catalogItem(const QString &id);

/// The item "item", named "Item". The lists have blanks between.
AppItem anItem(AppKind kind, const QString &packages = {}, const QString &appPaths = {}, const QString &commands = {});

/// A `brew` at Homebrew's own place that lists, installs and removes; it refuses the name in `refused`. `listed` is in
/// the mixed form, with blanks between.
void addBrew(const TemporaryMac &mac, const QString &listed = {}, const QString &refused = {});

/// `codesign` and `spctl`, which judge by the files `team` and `rejected` in a bundle.
void addSigningTools(const TemporaryMac &mac);

} // namespace Tavelo
