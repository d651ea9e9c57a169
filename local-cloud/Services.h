#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QString>

#include <utility>

namespace Tavelo
{

/// A request as it came in.
struct ReceivedRequest {
    QByteArray method;
    QByteArray target; ///< Path and query as sent.
    QList<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;

    QByteArray path() const;
    QByteArray query() const;                        ///< Empty if there is none.
    QByteArray header(const QByteArray &name) const; ///< Empty if there is none; case does not matter.
};

struct ServiceAnswer {
    int status = 200;
    QJsonValue body;
};

/// The cloud's services over files in a folder, which may be read and edited while the server runs:
///
///     release-policy.json   the answer of `/functions/v1/release-policy`
///     app_catalog.json      the rows of `/rest/v1/app_catalog`
///     business.json         organisation, policies and this Mac's fields, of `/functions/v1/business-device-config`
///     workspace.json        workspace and profiles, of `/functions/v1/manage-technician-workspace`
///     reports/              what `/functions/v1/upload-install-report` received, one file each
///
/// Strict on purpose: a request that the program would not send is refused, and `detail` says why. Looked at are its
/// method and path, the headers that the program sets, and each key of its query or body with its value, or with the
/// value's type where that differs from Mac to Mac.
class Services
{
public:
    /// Fills the folder with what is missing.
    Services(QString folder, QByteArray anonKey);

    ServiceAnswer answer(const ReceivedRequest &request) const;

private:
    QString file(const QString &name) const { return m_folder + u'/' + name; }
    ServiceAnswer releasePolicy(const ReceivedRequest &request) const;
    ServiceAnswer catalog(const ReceivedRequest &request) const;
    ServiceAnswer installReport(const QJsonObject &report) const;
    ServiceAnswer businessConfig(const QJsonObject &request) const;
    ServiceAnswer workspace(const QJsonObject &request) const;

    QString m_folder;
    QByteArray m_anonKey;
};

} // namespace Tavelo
