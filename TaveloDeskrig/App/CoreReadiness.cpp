#include "CoreReadiness.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

/// The names as the backend gives them.
const QSet<QString> &coreCheckNames()
{
    static const QSet<QString> names{u"macOS compatibility"_s, u"CPU architecture"_s, u"Homebrew"_s,
                                     u"Internet connection"_s, u"Dung lượng trống"_s, u"user mode"_s};
    return names;
}

} // namespace

CoreReadiness CoreReadiness::of(const QList<SystemCheck> &checks, const AppStrings &strings)
{
    QStringList warnings;
    for (const SystemCheck &check : checks) {
        if (!coreCheckNames().contains(check.name))
            continue;
        if (check.level == SystemCheck::Level::fail)
            return {u"FAIL"_s, SystemCheck::Level::fail, check.detail};
        if (check.level == SystemCheck::Level::warn)
            warnings.append(check.name);
    }
    if (!warnings.isEmpty())
        return {u"SETUP"_s, SystemCheck::Level::warn, strings.setupNeeded(warnings)};
    return {u"OK"_s, SystemCheck::Level::ok, strings.systemReadyDetail()};
}

} // namespace Tavelo
