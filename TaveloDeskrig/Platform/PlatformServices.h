#pragma once

#include <QVariant>

#include <memory>

class QProcessEnvironment;

namespace Tavelo
{

class Clock;
class Console;
class DesktopServices;
class FileManager;
class MainQueue;
class ProcessLauncher;
class ReceiptSecurity;
class SystemFacts;
class UserDefaults;

/// All that the rest of the program may ask of the machine, handed down by constructor. A test replaces one service and
/// keeps the others real.
struct PlatformServices {
    std::shared_ptr<const FileManager> files;
    std::shared_ptr<const ProcessLauncher> processes;
    std::shared_ptr<const SystemFacts> facts;
    std::shared_ptr<const ReceiptSecurity> receipts;
    std::shared_ptr<const UserDefaults> defaults;
    std::shared_ptr<MainQueue> mainQueue; ///< Its main thread is the one that made this record.
    std::shared_ptr<const Clock> clock;
    std::shared_ptr<const Console> console;
    std::shared_ptr<const DesktopServices> desktop;
    QVariantMap ownBundleInfo; ///< Information dictionary of the program's own bundle.

    /// The services of the Mac that the environment names: this machine, or the folder in `TAVELO_MAC_HOST_ROOT`.
    static PlatformServices make(QProcessEnvironment environment);

    /// The same with the process's own environment.
    static PlatformServices make();
};

} // namespace Tavelo
