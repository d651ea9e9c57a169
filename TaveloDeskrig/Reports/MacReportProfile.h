#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <optional>

namespace Tavelo
{

class UserDefaults;
struct FileError;

/// What the technician types in for the PDF report.
struct MacReportProfile {
    Q_GADGET
    Q_PROPERTY(QString inspectorName MEMBER inspectorName)
    Q_PROPERTY(QString team MEMBER team)
    Q_PROPERTY(QString recipient MEMBER recipient)
    Q_PROPERTY(QString subject MEMBER subject)
    Q_PROPERTY(QString notes MEMBER notes)

public:
    QString inspectorName = {}; ///< Who did the inspection.
    QString team = {};          ///< Team or unit.
    QString recipient = {};     ///< Who receives the report.
    QString subject = {};       ///< The report's title.
    QString notes = {};         ///< Free notes and conclusion.

    /// A JSON object with the fields' names as keys, in their order.
    QByteArray json() const;

    /// Reads the JSON form. A missing field, or one that is no text, gives nothing; other keys are passed over.
    static std::optional<MacReportProfile> parse(const QByteArray &json);

    bool operator==(const MacReportProfile &) const = default;
};

/// The profile in the user's settings; nothing where there is none or it does not read.
std::optional<MacReportProfile> loadReportProfile(const UserDefaults &defaults);

/// Stores the profile in the user's settings, as a whole.
bool saveReportProfile(const UserDefaults &defaults, const MacReportProfile &profile, FileError *error = nullptr);

} // namespace Tavelo
