#include "MacReportProfile.h"

#include "RecordJson.h"
#include "UserDefaults.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

const QString profileKey = u"tavelo.mac.report-profile"_s;

/// The text as it stands in a JSON document, with its quotation marks.
QByteArray jsonText(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

} // namespace

QByteArray MacReportProfile::json() const
{
    // A JSON object of the library would sort the keys.
    const std::pair<const char *, const QString &> fields[] = {{"inspectorName", inspectorName},
                                                               {"team", team},
                                                               {"recipient", recipient},
                                                               {"subject", subject},
                                                               {"notes", notes}};
    QByteArray members;
    for (const auto &[key, text] : fields)
        members += (members.isEmpty() ? "\"" : ",\"") + QByteArray(key) + "\":" + jsonText(text);
    return '{' + members + '}';
}

std::optional<MacReportProfile> MacReportProfile::parse(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    RecordReader reader(object);
    const MacReportProfile profile{
        .inspectorName = reader.text("inspectorName"_L1),
        .team = reader.text("team"_L1),
        .recipient = reader.text("recipient"_L1),
        .subject = reader.text("subject"_L1),
        .notes = reader.text("notes"_L1),
    };
    return reader.ok() ? std::optional(profile) : std::nullopt;
}

std::optional<MacReportProfile> loadReportProfile(const UserDefaults &defaults)
{
    const std::optional<QByteArray> json = defaults.data(profileKey);
    return json ? MacReportProfile::parse(*json) : std::nullopt;
}

bool saveReportProfile(const UserDefaults &defaults, const MacReportProfile &profile, FileError *error)
{
    return defaults.setData(profileKey, profile.json(), error);
}

} // namespace Tavelo
