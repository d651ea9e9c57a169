#pragma once

#include "FileManager.h"
#include "PlatformServices.h"

#include <QJsonObject>
#include <QString>

/// What the cloud said last, kept as files in `AppRuntime::cacheDir`, so that the program starts without a network.
namespace Tavelo::CloudCache
{

/// File names.
inline const QString catalogFile = QStringLiteral("supabase-catalog.json");
inline const QString businessPolicyFile = QStringLiteral("business-policy.json");
inline const QString technicianWorkspaceFile = QStringLiteral("technician-workspace.json");

/// The largest cache that is written or read, in bytes. A genuine one has some thousand, or with a shop's logo in it
/// some hundred thousand.
constexpr qint64 maximumSize = qint64(16) * 1024 * 1024;

/// Replaces the file as a whole by the object, indented and with its keys in order, with mode 0600. False where that
/// cannot be done, and for an object that would make a larger file (EFBIG); an earlier file then stays as it was.
bool write(const PlatformServices &services, const QString &fileName, const QJsonObject &object, FileError *error);

/// The object that the file holds; an empty one where there is none, or no whole one.
QJsonObject read(const PlatformServices &services, const QString &fileName);

} // namespace Tavelo::CloudCache
