// How long the window waits for its state: the view model's start-up on a Mac whose tools are slow, beside the start of
// one process that does nothing. Works on the Mac in TAVELO_MAC_HOST_ROOT.

#include "DeskrigViewModel.h"
#include "FileManager.h"
#include "Measure.h"
#include "NetworkTransport.h"
#include "WorkPool.h"

#include <QGuiApplication>
#include <QProcessEnvironment>

#include <atomic>
#include <cstdio>
#include <thread>

using namespace Tavelo;
using namespace Tavelo::Bench;

namespace
{

constexpr double startUpBudget = 1.0;

/// Each tool takes its time, until the benchmark is over; then none is started any more.
class SlowLauncher : public ProcessLauncher
{
public:
    using ProcessLauncher::ProcessLauncher;

    ProcessResult run(const ProcessSetup &setup) const override
    {
        if (over)
            return {};
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        return ProcessLauncher::run(setup);
    }

    mutable std::atomic<bool> over = false;
};

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    PlatformServices services = PlatformServices::make();
    if (!services.files->root().isSimulated()) {
        std::fprintf(stderr, "usage: TAVELO_MAC_HOST_ROOT=DIR BenchState\n");
        return 2;
    }
    const auto launcher = std::make_shared<SlowLauncher>(services.files->root(), services.mainQueue);
    services.processes = launcher;
    {
        WorkPool pool(64);
        std::vector<std::unique_ptr<DeskrigViewModel>> models;
        const auto start = [&] {
            models.push_back(std::make_unique<DeskrigViewModel>(services, std::make_unique<NetworkTransport>(), pool));
        };
        const Pair pair = compare(
            start, [] { bareRun(QStringLiteral("/bin/true"), {}, {}, false); }, 15);
        print(QStringLiteral("start-up of the state, tools of 300 ms"), pair, startUpBudget);
        launcher->over = true;
    }
    return 0;
}
