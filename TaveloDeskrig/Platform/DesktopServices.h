#pragma once

#include <QProcessEnvironment>
#include <QString>

#include <memory>

namespace Tavelo
{

class ProcessLauncher;

/// What the user's desktop does for the program. Virtual, so that a test can watch.
class DesktopServices
{
public:
    DesktopServices(std::shared_ptr<const ProcessLauncher> processes, const QProcessEnvironment &environment);
    virtual ~DesktopServices();
    Q_DISABLE_COPY_MOVE(DesktopServices)

    /// Opens a URL, or a file by its Mac path, with the application that the user has for it. False if there is none.
    /// Blocks until the system has taken it over, so not for the main thread of a window.
    virtual bool open(const QString &urlOrPath) const;

    /// Shows a file in its folder. Blocks like `open`.
    virtual bool reveal(const QString &path) const;

    /// Puts a text on the clipboard, in place of all that was there. On the main thread of a GUI application only.
    virtual void copy(const QString &text) const;

private:
    bool runOpen(const QStringList &arguments) const;

    std::shared_ptr<const ProcessLauncher> m_processes;
    QProcessEnvironment m_environment;
};

} // namespace Tavelo
