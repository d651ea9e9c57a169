// What the window costs: its first frame and memory beside those of a plain window, both as processes of their own,
// then what it takes while nothing happens, for a refresh, for lines of the log and for scrolling. Works on the Mac in
// TAVELO_MAC_HOST_ROOT.

#include "DeskrigViewModel.h"
#include "DeskrigWindow.h"
#include "FileManager.h"
#include "Measure.h"
#include "NetworkTransport.h"
#include "SampleReports.h"
#include "WorkPool.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QProcessEnvironment>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <ctime>

using namespace Qt::StringLiterals;
using namespace Tavelo;
using namespace Tavelo::Bench;

void qml_register_types_Tavelo_Bench();

namespace
{

constexpr double firstFrameBudget = 1.5;
constexpr double idleBudget = 10; // milliseconds of ten seconds
constexpr double frameBudget = 1000.0 / 60;

/// Ends the process with its memory in the file: what comes after the first frame is not asked for.
[[noreturn]] void endWithMemory(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray::number(ownMemory("VmRSS:"))) <= 0)
        std::_Exit(EXIT_FAILURE);
    file.close();
    std::_Exit(EXIT_SUCCESS);
}

int plainWindow(const QString &path)
{
    volatile const auto registration = &qml_register_types_Tavelo_Bench; // keeps the linker from leaving it out
    Q_UNUSED(registration)
    QQmlApplicationEngine engine;
    QObject::connect(&engine, &QQmlApplicationEngine::objectCreated, &engine, [&path](QObject *object) {
        QObject::connect(qobject_cast<QQuickWindow *>(object), &QQuickWindow::frameSwapped, object,
                         [&path] { endWithMemory(path); });
    });
    engine.load(QUrl(u"qrc:/qt/qml/Tavelo/Bench/PlainWindow.qml"_s));
    return QGuiApplication::exec();
}

int realWindow(const QString &path)
{
    WorkPool pool;
    pool.holdBack();
    DeskrigViewModel model(PlatformServices::make(), std::make_unique<NetworkTransport>(), pool);
    const DeskrigWindow window(model, [&path] { endWithMemory(path); });
    return QGuiApplication::exec();
}

void firstFrame(const QString &program, const QStringList &environment)
{
    const QTemporaryDir folder;
    const auto memoryOf = [&](const QString &role) {
        QFile file(folder.filePath(role));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toDouble() / 1024 : 0;
    };
    const auto start = [&](const QString &role) {
        if (bareRun(program, {role, folder.filePath(role)}, environment, false) != EXIT_SUCCESS)
            qFatal("the window %s did not end well", qPrintable(role));
    };
    print(u"first frame, from the start of the process"_s,
          compare([&] { start(u"real"_s); }, [&] { start(u"plain"_s); }, 21), firstFrameBudget);
    print(u"  memory at that frame"_s, {memoryOf(u"real"_s), memoryOf(u"plain"_s)}, noBudget, "MiB");
}

/// Processor time of this process so far, in milliseconds.
double processorTime()
{
    return static_cast<double>(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

/// Runs the main loop for that time.
void pass(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Runs the main loop until the next frame.
void drawFrame(QQuickWindow &window)
{
    QEventLoop loop;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    window.update();
    QTimer::singleShot(1000, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Runs the main loop until the signal.
template <typename Signal>
void waitFor(DeskrigViewModel &model, Signal signal)
{
    QEventLoop loop;
    QObject::connect(&model, signal, &loop, &QEventLoop::quit);
    loop.exec();
}

void refresh(DeskrigViewModel &model, QQuickWindow &window)
{
    const double before = processorTime();
    constexpr int rounds = 5;
    for (int round = 0; round < rounds; ++round) {
        model.refreshStatuses(false);
        waitFor(model, &DeskrigViewModel::currentActionChanged); // the first of its end
        drawFrame(window);
    }
    printFigure(u"refresh of all statuses, own processor time"_s, (processorTime() - before) / rounds, "ms");
}

void logLines(DeskrigViewModel &model, QQuickWindow &window)
{
    const auto lines = [&] {
        for (int line = 0; line < 1000; ++line) {
            model.logLines()->append(u"[12:00:00] ==> Downloading a line of the log, number %1"_s.arg(line));
            if (line % 50 == 49)
                drawFrame(window);
        }
    };
    const auto withDrawer = [&](bool shown) {
        model.setShowLogDrawer(shown);
        drawFrame(window);
        lines();
    };
    print(u"1,000 lines of the log beside a closed drawer"_s,
          compare([&] { withDrawer(true); }, [&] { withDrawer(false); }, 5), noBudget);
}

void scrolling(DeskrigViewModel &model, QQuickWindow &window)
{
    model.selectGroup(u"audit"_s);
    drawFrame(window);
    auto *const list = window.findChild<QQuickItem *>(u"audit-list"_s);
    if (!list || list->property("count").toInt() < 2000)
        qFatal("the audit list is not there");
    constexpr int frames = 300;
    QElapsedTimer timer;
    timer.start();
    double longest = 0;
    for (int frame = 1; frame <= frames; ++frame) {
        const qint64 before = timer.nsecsElapsed();
        list->setProperty("contentY", 97 * frame);
        drawFrame(window);
        longest = std::max(longest, static_cast<double>(timer.nsecsElapsed() - before) / 1e6);
    }
    const Pair pair{static_cast<double>(timer.nsecsElapsed()) / 1e6 / frames, frameBudget};
    print(u"a frame of scrolling 2,000 records, of 1/60 s"_s, pair, 1);
    print(u"  the slowest of 300"_s, {longest, frameBudget}, noBudget);
}

void wholeWindow()
{
    const PlatformServices services = PlatformServices::make();
    const QList<InstalledMacApplication> applications = sampleApplications(2000, 3);
    if (!ReportSnapshotStore(services, AppRuntime(services))
             .save(sampleReportText(AppLanguage::english, applications), applications))
        qFatal("cannot store the audit");
    WorkPool pool;
    DeskrigViewModel model(services, std::make_unique<NetworkTransport>(), pool);
    const DeskrigWindow holder(model);
    QQuickWindow &window = *holder.window();
    pass(5000); // the first refresh and the cards of the start are over by then

    const double before = processorTime();
    pass(10'000);
    printLimit(u"processor time of ten idle seconds"_s, processorTime() - before, idleBudget, "ms");
    refresh(model, window);
    logLines(model, window);
    scrolling(model, window);
    printFigure(u"memory after all that, with 2,000 records"_s, static_cast<double>(ownMemory("VmRSS:")) / 1024, "MiB");
}

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (!PlatformServices::make().files->root().isSimulated()) {
        std::fprintf(stderr, "usage: TAVELO_MAC_HOST_ROOT=DIR BenchWindow\n");
        return 2;
    }
    if (arguments.value(1) == u"plain")
        return plainWindow(arguments.value(2));
    if (arguments.value(1) == u"real")
        return realWindow(arguments.value(2));
    firstFrame(arguments.at(0), QProcessEnvironment::systemEnvironment().toStringList());
    wholeWindow();
    return 0;
}
