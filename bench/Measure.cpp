#include "Measure.h"

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Tavelo::Bench
{

namespace
{

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

double once(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

std::vector<QByteArray> encoded(const QStringList &texts)
{
    std::vector<QByteArray> bytes;
    for (const QString &text : texts)
        bytes.push_back(QFile::encodeName(text));
    return bytes;
}

std::vector<char *> pointers(std::vector<QByteArray> &bytes)
{
    std::vector<char *> list;
    for (QByteArray &each : bytes)
        list.push_back(each.data());
    list.push_back(nullptr);
    return list;
}

} // namespace

Pair compare(const std::function<void()> &work, const std::function<void()> &floor, int rounds)
{
    std::vector<double> measured;
    std::vector<double> floors;
    once(work);
    once(floor);
    for (int round = 0; round < rounds; ++round) {
        measured.push_back(once(work));
        floors.push_back(once(floor));
    }
    return {median(measured), median(floors)};
}

void print(const QString &what, const Pair &pair, double budget, const char *unit)
{
    const double ratio = pair.measured / pair.floor;
    std::printf("%-44s %9.2f %-3s  %9.2f %-3s  %5.2f x", qPrintable(what), pair.measured, unit, pair.floor, unit,
                ratio);
    if (budget > noBudget)
        std::printf("  %5.2f x  %s", budget, ratio <= budget ? "within" : "OVER");
    std::printf("\n");
    std::fflush(stdout);
}

void printFigure(const QString &what, double figure, const char *unit)
{
    std::printf("%-44s %9.2f %s\n", qPrintable(what), figure, unit);
    std::fflush(stdout);
}

void printLimit(const QString &what, double figure, double limit, const char *unit)
{
    std::printf("%-44s %9.2f %-3s  %24s %6.2f %-3s  %s\n", qPrintable(what), figure, unit, "", limit, unit,
                figure <= limit ? "within" : "OVER");
    std::fflush(stdout);
}

int bareRun(const QString &hostPath, const QStringList &arguments, const QStringList &environment, bool readOutput)
{
    std::vector<QByteArray> argumentBytes = encoded(QStringList(hostPath) + arguments);
    std::vector<QByteArray> environmentBytes = encoded(environment);
    const std::vector<char *> argv = pointers(argumentBytes);
    const std::vector<char *> envp = pointers(environmentBytes);

    int ends[2] = {-1, -1};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (readOutput && ::pipe2(ends, O_CLOEXEC) == 0)
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    else
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int failure = ::posix_spawn(&child, argv.front(), &actions, nullptr, argv.data(), envp.data());
    posix_spawn_file_actions_destroy(&actions);
    if (ends[1] >= 0)
        ::close(ends[1]);
    if (ends[0] >= 0) {
        char buffer[65536];
        while (::read(ends[0], buffer, sizeof buffer) > 0) {
        }
        ::close(ends[0]);
    }
    int status = 0;
    if (failure != 0 || ::waitpid(child, &status, 0) != child)
        return 127;
    return WIFEXITED(status) ? WEXITSTATUS(status) : WTERMSIG(status);
}

qint64 ownMemory(const QByteArray &name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(name))
            return line.mid(name.size()).trimmed().split(' ').value(0).toLongLong();
    }
    return 0;
}

ProcessResult RecordingLauncher::run(const ProcessSetup &setup) const
{
    ++runs;
    if (keepsSetups)
        setups.push_back(setup);
    return ProcessLauncher::run(setup);
}

} // namespace Tavelo::Bench
