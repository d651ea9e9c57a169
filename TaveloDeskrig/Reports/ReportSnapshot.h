#pragma once

#include "AppRuntime.h"
#include "InstalledMacApplication.h"
#include "PlatformServices.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

namespace Tavelo
{

struct FileError;

/// The last finished audit.
struct ReportSnapshot {
    QString text; ///< The text report.
    QList<InstalledMacApplication> applications;
    QDateTime createdAt; ///< When it was saved, in milliseconds; in the local time zone once it is read.

    /// A JSON object with the fields' names as keys. The time is in seconds since the beginning of 2001 in UTC.
    QByteArray json() const;

    /// Reads the JSON form. A missing field, one of another type, a record that does not read and a time outside the
    /// years 1 to 9999 give nothing; other keys are passed over.
    static std::optional<ReportSnapshot> parse(const QByteArray &json);

    bool operator==(const ReportSnapshot &) const = default;
};

/// Keeps the snapshot between runs: in `Reports/report-snapshot.json` of `AppRuntime::appSupportDir`, a private file in
/// a private folder. Earlier versions kept it in the user's settings; it is taken over from there.
class ReportSnapshotStore
{
public:
    ReportSnapshotStore(PlatformServices services, const AppRuntime &runtime);

    /// The stored snapshot; nothing where there is none or it does not read. A file that can be read wins over the
    /// earlier versions' settings, also one that holds no snapshot.
    ///
    /// Settings of earlier versions are moved to the file, which makes now the time of saving. Where that fails,
    /// `error` tells why (its code is 0 otherwise), they stay, and the snapshot is given all the same.
    std::optional<ReportSnapshot> load(FileError *error = nullptr) const;

    /// Stores an audit as of now, with mode 0600 in a folder of mode 0700. Where a mode cannot be set this fails too,
    /// though the file may be written by then. Success takes the earlier versions' snapshot away.
    bool save(const QString &text, const QList<InstalledMacApplication> &applications,
              FileError *error = nullptr) const;

    /// The line of the log for a snapshot that could not be stored.
    static QString failureLine(const FileError &error);

private:
    PlatformServices m_services;
    QString m_folder;
    QString m_file;
};

} // namespace Tavelo
