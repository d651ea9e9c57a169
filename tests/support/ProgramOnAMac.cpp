#include "ProgramOnAMac.h"

#include <QDir>
#include <QFile>
#include <QProcess>

namespace Tavelo
{

ProgramOnAMac::ProgramOnAMac(const QStringList &options)
{
    furnish(QStringLiteral("make-mac"), QStringList{QStringLiteral("--pace"), QStringLiteral("0")} + options);
}

ProgramOnAMac::Outcome ProgramOnAMac::run(const QString &arguments, const QByteArray &input) const
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program(), arguments.split(u' '));
    process.write(input);
    process.closeWriteChannel();
    // Ends what hangs. A flood of output takes minutes under a sanitizer on a busy machine.
    if (!process.waitForFinished(900000))
        return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

void ProgramOnAMac::furnish(const QString &tool, const QStringList &arguments) const
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(SIMULATED_MAC "/") + tool, QStringList(folder()) + arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s %s: %s", qPrintable(tool), qPrintable(arguments.join(u' ')),
               process.readAllStandardError().constData());
}

QStringList ProgramOnAMac::logLines() const
{
    return QString::fromUtf8(contents(QStringLiteral("/Users/technician/Library/Logs/tavelo-deskrig.log")))
        .split(u'\n', Qt::SkipEmptyParts);
}

QStringList ProgramOnAMac::leftovers() const
{
    QStringList left;
    const QString cache = hostPath(home()) + QStringLiteral("/Library/Caches/tavelo-deskrig");
    for (const char *folder : {"/mounts", "/extract"})
        left +=
            QDir(cache + QLatin1StringView(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    return left;
}

QStringList ProgramOnAMac::takeCalls() const
{
    const QString record = QStringLiteral("/private/var/log/simulated-mac/calls.log");
    const QStringList calls = QString::fromUtf8(contents(record)).split(u'\n', Qt::SkipEmptyParts);
    QFile::resize(hostPath(record), 0);
    return calls;
}

QString ProgramOnAMac::program()
{
    return QStringLiteral(PROGRAM);
}

} // namespace Tavelo
