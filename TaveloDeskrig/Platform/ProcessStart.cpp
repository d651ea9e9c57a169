#include "ProcessStart.h"

#include <QFile>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace Tavelo
{

void prepareProcess()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // The lowest free number is this stream's own, since those below are open by now.
        if (::fcntl(stream, F_GETFD) < 0 && errno == EBADF && ::open("/dev/null", O_RDWR) < 0)
            std::abort();
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGCHLD, SIG_DFL);
    sigset_t childEnds;
    sigemptyset(&childEnds);
    sigaddset(&childEnds, SIGCHLD);
    ::pthread_sigmask(SIG_UNBLOCK, &childEnds, nullptr);
}

QStringList processArguments(int count, char *arguments[])
{
    QStringList list;
    for (int index = 0; index < count; ++index)
        list.append(QFile::decodeName(arguments[index]));
    return list;
}

} // namespace Tavelo
