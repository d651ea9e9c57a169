// Prints each figure of the backend beside its floor, both measured in this run. Works on the Mac in
// TAVELO_MAC_HOST_ROOT, on which the catalog should be installed; takes the folder of the built programs as its
// argument.

#include "Catalog.h"
#include "FileManager.h"
#include "MacBackend.h"
#include "MainQueue.h"
#include "Measure.h"

#include <QCoreApplication>
#include <QProcessEnvironment>

#include <algorithm>
#include <cstdio>

using namespace Tavelo;
using namespace Tavelo::Bench;

namespace
{

constexpr double helpBudget = 1.2;
constexpr double statusBudget = 1.1;
constexpr double processBudget = 1.2;

void helpBesideAPrintedLine(const QString &folder, const QStringList &environment)
{
    const QString program = folder + QStringLiteral("/TaveloDeskrig.app/Contents/MacOS/TaveloDeskrig");
    const QString floor = folder + QStringLiteral("/bench/PrintLine");
    print(QStringLiteral("--help as a process"),
          compare([&] { bareRun(program, {QStringLiteral("--help")}, environment, true); },
                  [&] { bareRun(floor, {}, environment, true); }, 101),
          helpBudget);
}

void statusBesideItsTools(const PlatformServices &services, const MacBackend &backend,
                          const RecordingLauncher &launcher)
{
    launcher.setups.clear();
    backend.statuses(Catalog::items());
    const std::vector<ProcessSetup> setups = launcher.setups;
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
    std::printf("%-34s %lld\n", "  runs of brew among them", static_cast<long long>(brewRuns));
}

void processStartBesideABareLoop(const PlatformServices &services, const QStringList &environment)
{
    // A program that does nothing, on this machine and outside the simulated Mac.
    const ProcessLauncher launcher(HostRoot(), services.mainQueue);
    const QString nothing = QStringLiteral("/bin/true");
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
    return 0;
}
