#include "ReportSnapshot.h"

#include "Clock.h"
#include "FileManager.h"
#include "UserDefaults.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

const QString earlierKey = u"tavelo.mac.report-snapshot.v1"_s;
constexpr mode_t folderMode = 0700;
constexpr mode_t fileMode = 0600;

QDateTime startOf(int year)
{
    return QDateTime(QDate(year, 1, 1), QTime(0, 0), Qt::UTC);
}

std::optional<QDateTime> timeSince2001(const QJsonValue &seconds)
{
    const qint64 reference = startOf(2001).toMSecsSinceEpoch();
    const double milliseconds = std::round(seconds.toDouble() * 1000);
    const auto since2001 = [&](int year) { return static_cast<double>(startOf(year).toMSecsSinceEpoch() - reference); };
    if (!seconds.isDouble() || !(milliseconds >= since2001(1) && milliseconds < since2001(10000)))
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(reference + static_cast<qint64>(milliseconds));
}

std::optional<QList<InstalledMacApplication>> records(const QJsonValue &value)
{
    if (!value.isArray())
        return std::nullopt;
    QList<InstalledMacApplication> list;
    const QJsonArray array = value.toArray();
    for (const QJsonValue element : array) {
        const std::optional<InstalledMacApplication> record = installedMacApplication(element.toObject());
        if (!record)
            return std::nullopt;
        list.append(*record);
    }
    return list;
}

} // namespace

QByteArray ReportSnapshot::json() const
{
    QJsonArray array;
    for (const InstalledMacApplication &application : applications)
        array.append(toJson(application));
    const QJsonObject object{
        {u"text"_s, text},
        {u"applications"_s, array},
        {u"createdAt"_s, static_cast<double>(startOf(2001).msecsTo(createdAt)) / 1000},
    };
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<ReportSnapshot> ReportSnapshot::parse(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const QJsonValue text = object.value("text"_L1);
    const auto applications = records(object.value("applications"_L1));
    const auto createdAt = timeSince2001(object.value("createdAt"_L1));
    if (!text.isString() || !applications || !createdAt)
        return std::nullopt;
    return ReportSnapshot{text.toString(), *applications, *createdAt};
}

ReportSnapshotStore::ReportSnapshotStore(PlatformServices services, const AppRuntime &runtime)
    : m_services(std::move(services)), m_folder(runtime.appSupportDir() + u"/Reports"_s),
      m_file(m_folder + u"/report-snapshot.json"_s)
{
}

std::optional<ReportSnapshot> ReportSnapshotStore::load(FileError *error) const
{
    const std::optional<QByteArray> earlier = m_services.defaults->data(earlierKey);
    std::optional<QByteArray> json = m_services.files->contents(m_file);
    if (!json)
        json = earlier;
    std::optional<ReportSnapshot> snapshot = json ? ReportSnapshot::parse(*json) : std::nullopt;
    if (snapshot && earlier && !save(snapshot->text, snapshot->applications, error) && error)
        *error = error->orInputOutput();
    return snapshot;
}

bool ReportSnapshotStore::save(const QString &text, const QList<InstalledMacApplication> &applications,
                               FileError *error) const
{
    const FileManager &files = *m_services.files;
    const ReportSnapshot snapshot{text, applications, m_services.clock->now()};
    if (!files.createFolder(m_folder, folderMode, error) || !files.setMode(m_folder, folderMode, error) ||
        !files.writeAtomically(m_file, snapshot.json(), fileMode, error) || !files.setMode(m_file, fileMode, error))
        return false;
    // Where it stays, the next start takes it over once more; the file wins until then.
    m_services.defaults->remove(earlierKey);
    return true;
}

QString ReportSnapshotStore::failureLine(const FileError &error)
{
    return u"Không lưu được report snapshot an toàn: "_s + error.text;
}

} // namespace Tavelo
