#include "DesktopServices.h"

#include "ProcessLauncher.h"

#include <QClipboard>
#include <QGuiApplication>

namespace Tavelo
{

DesktopServices::DesktopServices(std::shared_ptr<const ProcessLauncher> processes,
                                 const QProcessEnvironment &environment)
    : m_processes(std::move(processes)), m_environment(environment)
{
}

DesktopServices::~DesktopServices() = default;

bool DesktopServices::open(const QString &urlOrPath) const
{
    return runOpen({urlOrPath});
}

bool DesktopServices::reveal(const QString &path) const
{
    return runOpen({QStringLiteral("-R"), path});
}

void DesktopServices::copy(const QString &text) const
{
    QGuiApplication::clipboard()->setText(text);
}

bool DesktopServices::runOpen(const QStringList &arguments) const
{
    ProcessSetup setup;
    setup.executable = QStringLiteral("/usr/bin/open");
    setup.arguments = arguments;
    setup.environment = m_environment;
    const ProcessResult result = m_processes->run(setup);
    return result.started && result.status == 0;
}

} // namespace Tavelo
