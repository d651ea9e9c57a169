#pragma once

#include "HostRoot.h"

#include <QProcessEnvironment>
#include <QString>

#include <memory>
#include <optional>

namespace Tavelo
{

class FileManager;

struct OSVersion {
    int major = 0;
    int minor = 0;
    int patch = 0;

    bool operator==(const OSVersion &) const = default;
};

/// What is known about the machine and about who runs the program. Virtual, so that a test can state one fact.
class SystemFacts
{
public:
    SystemFacts(std::shared_ptr<const FileManager> files, const QProcessEnvironment &environment);
    virtual ~SystemFacts();
    Q_DISABLE_COPY_MOVE(SystemFacts)

    /// The version in `/System/Library/CoreServices/SystemVersion.plist`; 0.0.0 where it cannot be told, which no check
    /// accepts.
    virtual OSVersion osVersion() const;

    /// The hardware name of the processor, "arm64" or "x86_64" on a Mac; empty if the system does not tell.
    virtual QString machineName() const;

    /// True when the name resolves to an address. Blocks for as long as the resolver takes. A simulated Mac knows the
    /// names in its `/etc/hosts`.
    virtual bool resolves(const QString &hostName) const;

    virtual bool isRoot() const;

    /// The name that the user gave the computer; nothing where the system's settings hold none.
    virtual std::optional<QString> computerName() const;

    /// The user's home folder as a Mac path: on this machine `HOME`, else what the password database says; on a
    /// simulated Mac `/Users/` and the value of `USER`, or `/Users/technician`.
    virtual QString homeFolder() const;

    /// The folder that relative paths count from, as a Mac path: the process's own on this machine, `/` on a simulated
    /// Mac.
    virtual QString workingFolder() const;

    /// The program's environment as it was when the facts were gathered.
    const QProcessEnvironment &environment() const { return m_environment; }

private:
    std::shared_ptr<const FileManager> m_files;
    QProcessEnvironment m_environment;
};

} // namespace Tavelo
