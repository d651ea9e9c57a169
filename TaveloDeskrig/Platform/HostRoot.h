#pragma once

#include <QProcessEnvironment>
#include <QString>

namespace Tavelo
{

/// Where the Mac lies on this machine: at `/` on a real Mac, in a folder for a simulated one.
///
/// Every path in the program is a Mac path; only the file manager, the process launcher and the system facts turn it
/// into a host path, here, at the moment they touch the machine.
class HostRoot
{
public:
    /// The Mac that this machine is: paths stay as they are.
    HostRoot() = default;

    /// A Mac in `folder`, a host path; a relative one counts from the process's own folder. An empty folder is the same
    /// as no folder.
    explicit HostRoot(const QString &folder);

    /// The variable that names the folder of a simulated Mac, `TAVELO_MAC_HOST_ROOT`; its tools read it too.
    static QString variableName();

    /// The folder that the variable names, else (also for blanks) this machine.
    static HostRoot fromEnvironment(const QProcessEnvironment &environment);

    bool isSimulated() const { return !m_folder.isEmpty(); }
    QString folder() const { return m_folder; }

    /// The host path of a Mac path. A relative path of a simulated Mac is taken from the Mac's root.
    QString hostPath(const QString &macPath) const;

    /// The Mac path of a host path. A host path outside the Mac's folder comes back as it is.
    QString macPath(const QString &hostPath) const;

private:
    QString m_folder;
};

} // namespace Tavelo
