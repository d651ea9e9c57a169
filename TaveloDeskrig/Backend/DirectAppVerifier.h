#pragma once

#include "AppItem.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace Tavelo
{

/// What the verifier asks of the Mac.
struct DirectAppVerificationTools {
    /// The identifier of the bundle at a path; nothing if it has none.
    std::function<std::optional<QString>(const QString &path)> bundleIdentifier;
    /// The exit status of a command.
    std::function<int(const QStringList &arguments)> runStatus;
    /// A command's standard output and standard error together.
    std::function<QString(const QStringList &arguments)> runOutput;
};

/// Tells whether an application is the vendor's own.
namespace DirectAppVerifier
{

/// True when the bundle at the Mac path has the pinned identifier, a whole signature that meets the pinned requirement
/// (issued by Apple to the pinned team), names that team, and is accepted by Gatekeeper. Stops at the first test that
/// fails; says nothing of why.
bool verify(const QString &path, const DirectInstallerSpec &spec, const DirectAppVerificationTools &tools);

} // namespace DirectAppVerifier

} // namespace Tavelo
