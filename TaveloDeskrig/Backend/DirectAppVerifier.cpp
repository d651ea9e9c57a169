#include "DirectAppVerifier.h"

namespace Tavelo::DirectAppVerifier
{

bool verify(const QString &path, const DirectInstallerSpec &spec, const DirectAppVerificationTools &tools)
{
    const std::optional<QString> identifier = tools.bundleIdentifier(path);
    if (!identifier || *identifier != spec.expectedBundleID)
        return false;

    const QString codesign = QStringLiteral("/usr/bin/codesign");
    const QString requirement = QStringLiteral("anchor apple generic and identifier \"") + spec.expectedBundleID +
                                QStringLiteral("\" and certificate leaf[subject.OU] = \"") + spec.expectedTeamID +
                                QStringLiteral("\"");
    if (tools.runStatus({codesign, QStringLiteral("--verify"), QStringLiteral("--deep"), QStringLiteral("--strict"),
                         QStringLiteral("-R=") + requirement, path}) != 0)
        return false;

    const QString report = tools.runOutput({codesign, QStringLiteral("-dv"), QStringLiteral("--verbose=4"), path});
    if (!report.contains(QStringLiteral("TeamIdentifier=") + spec.expectedTeamID))
        return false;

    return tools.runStatus({QStringLiteral("/usr/sbin/spctl"), QStringLiteral("--assess"), QStringLiteral("--type"),
                            QStringLiteral("execute"), path}) == 0;
}

} // namespace Tavelo::DirectAppVerifier
