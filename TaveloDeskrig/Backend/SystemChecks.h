#pragma once

#include "AppItem.h"
#include "CommandRunner.h"
#include "ItemStatus.h"
#include "PlatformServices.h"

#include <QList>
#include <QString>
#include <QUuid>

namespace Tavelo
{

/// One row of the readiness table. Names are fixed; details are Vietnamese.
struct SystemCheck {
    enum class Level { ok, warn, fail };

    QUuid id = QUuid::createUuid(); ///< A fresh one for each row made.
    QString name;
    Level level = Level::fail;
    QString detail;
};

/// "OK", "WARN" or "FAIL", in every language.
QString levelWord(SystemCheck::Level level);

/// The check in a line of the log.
QString logLine(const SystemCheck &check);

/// Whether the Mac is fit for the work. The rows only inform; what refuses an install is `InstallBlockers`, which looks
/// at the same facts with other thresholds. A fact that cannot be had reads as the bad case. Blocks on name resolution
/// and on tools.
class SystemChecks
{
public:
    /// `runner` and `itemStatus` must outlive it.
    SystemChecks(PlatformServices services, const CommandRunner &runner, const ItemStatus &itemStatus);

    /// Always the same nine rows, in the same order.
    QList<SystemCheck> systemChecks() const;

    struct Compatibility {
        SystemCheck::Level level = SystemCheck::Level::fail;
        QString detail;
    };
    /// macOS 13 and later are fit, 12 is with a warning.
    Compatibility macOSCompatibility() const;

    /// "{major}.{minor}.{patch}".
    QString macOSVersionString() const;

    /// The hardware name of the processor, as "arm64".
    QString architectureLabel() const;
    bool architectureIsSupported() const;

    /// Free space on `/` in GiB, rounded down; 0 if it cannot be told.
    qint64 freeDiskGB() const;

    /// The whole of the network test: whether the name of Homebrew's server resolves. Asked afresh at each call.
    bool networkAnswers() const;

private:
    SystemCheck installedCheck(const QString &name, const QString &itemID) const;

    PlatformServices m_services;
    const CommandRunner &m_runner;
    const ItemStatus &m_itemStatus;
};

} // namespace Tavelo
