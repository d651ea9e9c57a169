#include "WorkspaceBranding.h"

#include "FileManager.h"
#include "ReportLogo.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace Tavelo::MacReportPDF
{

namespace
{

constexpr qint64 maximumFileSize = qint64(16) * 1024 * 1024;

QImage logoInDataURL(const QString &url)
{
    const QString marker = QStringLiteral(";base64,");
    const qsizetype place = url.indexOf(marker);
    if (place < 0)
        return {};
    const QByteArray::FromBase64Result bytes = QByteArray::fromBase64Encoding(
        url.mid(place + marker.size()).toUtf8(), QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    return bytes ? decodedLogo(bytes.decoded) : QImage();
}

} // namespace

WorkspaceBranding loadWorkspaceBranding(const FileManager &files, const QString &cacheDirectory)
{
    const QString path = cacheDirectory + QStringLiteral("/technician-workspace.json");
    return workspaceBranding(files.contentsUpTo(path, maximumFileSize).value_or(QByteArray()));
}

WorkspaceBranding workspaceBranding(const QByteArray &json)
{
    const QJsonObject workspace = QJsonDocument::fromJson(json).object().value(QStringLiteral("workspace")).toObject();
    WorkspaceBranding branding{workspace.value(QStringLiteral("display_name")).toString().trimmed(), {}};
    if (!branding.name.isEmpty())
        branding.logo = logoInDataURL(workspace.value(QStringLiteral("logo_data_url")).toString());
    return branding;
}

} // namespace Tavelo::MacReportPDF
