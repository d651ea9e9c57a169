#pragma once

#include <QHashFunctions>
#include <QString>
#include <QStringList>

namespace Tavelo
{

/// A Homebrew cask as far as it installs applications.
struct HomebrewCaskApplication {
    QString token;
    QString installedVersion; ///< "unknown" where Homebrew names none.
    QStringList appNames;     ///< Lower-case bundle file names that the cask installs.

    bool operator==(const HomebrewCaskApplication &) const = default;
};

inline size_t qHash(const HomebrewCaskApplication &cask, size_t seed = 0)
{
    return qHashMulti(seed, cask.token, cask.installedVersion, cask.appNames);
}

} // namespace Tavelo
