// Prints each figure of the backend beside its floor, both measured in this run. Works on the Mac in
// TAVELO_MAC_HOST_ROOT, on which the catalog should be installed; takes the folder of the built programs as its
// argument.

#include "Catalog.h"
#include "FileManager.h"
#include "MacBackend.h"
#include "MainQueue.h"
#include "Measure.h"
#include "PropertyList.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <algorithm>

using namespace Tavelo;
using namespace Tavelo::Bench;

namespace
{

constexpr double helpBudget = 1.2;
constexpr double statusBudget = 1.1;
constexpr double processBudget = 1.2;
constexpr double inventoryBudget = 1.2;
constexpr double growthBudget = 1.15;
constexpr double memoryBudget = 40; // MiB

/// A program that does nothing, on this machine and outside the simulated Mac.
const QString nothing = QStringLiteral("/bin/true");

void helpBesideAPrintedLine(const QString &folder, const QStringList &environment)
{
    const QString program = folder + QStringLiteral("/TaveloDeskrig.app/Contents/MacOS/TaveloDeskrig");
    const QString floor = folder + QStringLiteral("/bench/PrintLine");
    print(QStringLiteral("--help as a process"),
          compare([&] { bareRun(program, {QStringLiteral("--help")}, environment, true); },
                  [&] { bareRun(floor, {}, environment, true); }, 101),
          helpBudget);
}

void statusBesideItsTools(const PlatformServices &services, const MacBackend &backend, RecordingLauncher &launcher)
{
    launcher.keepsSetups = true;
    backend.statuses(Catalog::items());
    launcher.keepsSetups = false;
    const std::vector<ProcessSetup> setups = std::move(launcher.setups);
    const auto brewRuns = std::count_if(setups.cbegin(), setups.cend(), [](const ProcessSetup &setup) {
        return setup.executable.endsWith(QStringLiteral("/brew"));
    });
    const HostRoot &root = services.files->root();
    print(QStringLiteral("status of 28 items (%1 tools)").arg(setups.size()),
          compare([&] { backend.statuses(Catalog::items()); },
                  [&] {
                      for (const ProcessSetup &setup : setups)
                          bareRun(root.hostPath(setup.executable), setup.arguments, setup.environment.toStringList(),
                                  setup.output != ProcessSetup::Output::discard);
                  },
                  11),
          statusBudget);
    printLimit(QStringLiteral("  runs of brew among them"), static_cast<double>(brewRuns), 2, "");
}

void processStartBesideABareLoop(const PlatformServices &services, const QStringList &environment)
{
    const ProcessLauncher launcher(HostRoot(), services.mainQueue);
    ProcessSetup setup;
    setup.executable = nothing;
    setup.environment = QProcessEnvironment::systemEnvironment();
    constexpr int starts = 20;
    print(QStringLiteral("20 process starts"),
          compare(
              [&] {
                  for (int count = 0; count < starts; ++count)
                      launcher.run(setup);
              },
              [&] {
                  for (int count = 0; count < starts; ++count)
                      bareRun(nothing, {}, environment, false);
              },
              21),
          processBudget);
}

/// A Mac with that many applications, and with tools that do nothing at all.
void furnish(const QString &folder, int applications)
{
    const auto put = [&](const QString &path, const QByteArray &bytes) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
    };
    for (const char *tool : {"/usr/bin/codesign", "/usr/sbin/pkgutil"}) {
        QDir().mkpath(QFileInfo(folder + QString::fromLatin1(tool)).path());
        QFile::copy(nothing, folder + QString::fromLatin1(tool));
    }
    for (int number = 0; number < applications; ++number) {
        const QString name = QStringLiteral("Application %1").arg(number, 5);
        put(folder + QStringLiteral("/Applications/%1.app/Contents/Info.plist").arg(name),
            PropertyList::xml(QVariantMap{
                {QStringLiteral("CFBundleName"), name},
                {QStringLiteral("CFBundleIdentifier"), QStringLiteral("org.example.application%1").arg(number)},
                {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("1.%1").arg(number)},
                {QStringLiteral("NSHumanReadableCopyright"), QStringLiteral("Copyright © 2024 Example %1").arg(number)},
            }));
    }
}

/// Milliseconds for one application.
double inventoryBesideABareLoop(int applications, int rounds, bool withMemory)
{
    const QTemporaryDir folder;
    furnish(folder.path(), applications);
    QProcessEnvironment environment;
    environment.insert(HostRoot::variableName(), folder.path());
    PlatformServices services = PlatformServices::make(environment);
    const auto launcher = std::make_shared<RecordingLauncher>(services.files->root(), services.mainQueue);
    services.processes = launcher;
    const MacBackend backend(
        services, [](const QString &) {}, [](const InstallProgressUpdate &) {});

    const qint64 before = ownMemory("VmRSS:");
    const qsizetype found = backend.installedAdditionalApplications().size();
    const qint64 peak = ownMemory("VmHWM:");
    const size_t processes = launcher->runs;
    if (found != applications)
        qFatal("the scan found %d applications", static_cast<int>(found));
    if (withMemory)
        printLimit(QStringLiteral("memory above that before, scan of %1").arg(applications),
                   static_cast<double>(peak - before) / 1024, memoryBudget, "MiB");
    const QStringList floorEnvironment = environment.toStringList();
    const Pair pair = compare([&] { backend.installedAdditionalApplications(); },
                              [&] {
                                  for (size_t count = 0; count < processes; ++count)
                                      bareRun(nothing, {}, floorEnvironment, count % 2 == 0);
                              },
                              rounds);
    print(QStringLiteral("inventory of %1 (%2 tools)").arg(applications).arg(processes), pair, inventoryBudget);
    return pair.measured / applications;
}

void inventory()
{
    // The largest first, since memory once taken is not given back.
    const double large = inventoryBesideABareLoop(4000, 1, true);
    inventoryBesideABareLoop(1000, 3, false);
    const double small = inventoryBesideABareLoop(250, 5, false);
    print(QStringLiteral("one application of 4,000 beside one of 250"), {large, small}, growthBudget);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    PlatformServices services = PlatformServices::make(environment);
    if (argc != 2 || !services.files->root().isSimulated()) {
        std::fprintf(stderr, "usage: TAVELO_MAC_HOST_ROOT=DIR Bench BUILD_FOLDER\n");
        return 2;
    }
    const auto launcher = std::make_shared<RecordingLauncher>(services.files->root(), services.mainQueue);
    services.processes = launcher;
    const MacBackend backend(
        services, [](const QString &) {}, [](const InstallProgressUpdate &) {});

    helpBesideAPrintedLine(application.arguments().at(1), environment.toStringList());
    statusBesideItsTools(services, backend, *launcher);
    processStartBesideABareLoop(services, environment.toStringList());
    inventory();
    return 0;
}
