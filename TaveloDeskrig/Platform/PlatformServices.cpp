#include "PlatformServices.h"

#include "Bundle.h"
#include "Clock.h"
#include "Console.h"
#include "FileManager.h"
#include "MainQueue.h"
#include "ProcessLauncher.h"
#include "SystemFacts.h"

#include <QCoreApplication>

namespace Tavelo
{

PlatformServices PlatformServices::make(const QProcessEnvironment &environment)
{
    const HostRoot root = HostRoot::fromEnvironment(environment);
    PlatformServices services;
    services.files = std::make_shared<FileManager>(root);
    services.mainQueue = std::make_shared<MainQueue>();
    services.processes = std::make_shared<ProcessLauncher>(root, services.mainQueue);
    services.facts = std::make_shared<SystemFacts>(services.files, environment);
    services.clock = std::make_shared<Clock>();
    services.console = std::make_shared<Console>();
    if (QCoreApplication::instance())
        services.ownBundleInfo = Bundle::ownInfoDictionary();
    return services;
}

} // namespace Tavelo
