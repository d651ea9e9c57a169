#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

namespace Tavelo
{

/// What the publisher says of this copy's version. The server compares the versions; the program obeys and compares
/// nothing. No policy at all means that the program goes on.
struct ReleasePolicy {
    bool updateRequired = false;
    bool updateAvailable = false;
    QString title;
    QString message;       ///< May be empty, if the server says so.
    QString downloadURL;   ///< As received; open it only as `ReleaseDownloadPolicy::validatedURL`.
    QString latestVersion; ///< Empty if not told, as is the next.
    QString minSupportedVersion;

    ReleasePolicy() = default;

    /// Reads the server's answer. What is missing or null has its default, and a value of another type is read as well
    /// as can be (`WireValue`).
    explicit ReleasePolicy(const QJsonObject &data);

    /// The version that there is to install; empty if not told.
    QString offeredVersion() const;

    bool operator==(const ReleasePolicy &) const = default;
};

/// What the log says of the server's answer, or of none.
QString releasePolicyLogLine(const std::optional<ReleasePolicy> &policy);

} // namespace Tavelo
