#include "PlatformServices.h"

#include "Bundle.h"
#include "Clock.h"
#include "Console.h"
#include "DesktopServices.h"
#include "FileManager.h"
#include "MainQueue.h"
#include "ProcessLauncher.h"
#include "ReceiptSecurity.h"
#include "SystemFacts.h"
#include "UserDefaults.h"

#include <QCoreApplication>
#include <QProcessEnvironment>

namespace Tavelo
{

PlatformServices PlatformServices::make()
{
    return make(QProcessEnvironment::systemEnvironment());
}

PlatformServices PlatformServices::make(QProcessEnvironment environment)
{
    const HostRoot root = HostRoot::fromEnvironment(environment);
    if (root.isSimulated()) // the Mac's tools take an absolute folder only
        environment.insert(HostRoot::variableName(), root.folder());
    PlatformServices services;
    services.files = std::make_shared<FileManager>(root);
    services.mainQueue = std::make_shared<MainQueue>();
    services.processes = std::make_shared<ProcessLauncher>(root, services.mainQueue);
    services.facts = std::make_shared<SystemFacts>(services.files, environment);
    services.receipts = std::make_shared<ReceiptSecurity>();
    services.defaults = std::make_shared<UserDefaults>(services.files, services.facts->homeFolder());
    services.clock = std::make_shared<Clock>();
    services.console = std::make_shared<Console>();
    services.desktop = std::make_shared<DesktopServices>(services.processes, environment);
    if (QCoreApplication::instance())
        services.ownBundleInfo = Bundle::ownInfoDictionary();
    return services;
}

} // namespace Tavelo
