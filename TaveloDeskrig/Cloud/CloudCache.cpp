#include "CloudCache.h"

#include "AppRuntime.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace Tavelo::CloudCache
{

namespace
{

constexpr mode_t folderMode = 0700;
constexpr mode_t fileMode = 0600;

/// Deeper objects are not written: the library's reader has a limit too, and what is written has to be read again.
constexpr int maximumDepth = 256;

QString pathOf(const PlatformServices &services, const QString &fileName)
{
    return AppRuntime(services).cacheDir() + u'/' + fileName;
}

/// Takes from `budget` the bytes that indentation costs, and is false where it does not suffice. A few megabytes of
/// brackets and commas would else become gigabytes of blanks.
bool fits(const QJsonValue &value, int depth, qint64 &budget)
{
    budget -= 4 * depth + 2;
    if (depth > maximumDepth || budget < 0)
        return false;
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        return std::all_of(array.begin(), array.end(),
                           [&](const QJsonValue &element) { return fits(element, depth + 1, budget); });
    }
    const QJsonObject object = value.toObject();
    return std::all_of(object.begin(), object.end(),
                       [&](const QJsonValue &element) { return fits(element, depth + 1, budget); });
}

bool tooLarge(FileError *error)
{
    if (error)
        *error = {EFBIG, QString::fromLocal8Bit(std::strerror(EFBIG))};
    return false;
}

} // namespace

bool write(const PlatformServices &services, const QString &fileName, const QJsonObject &object, FileError *error)
{
    qint64 budget = maximumSize;
    if (!fits(object, 0, budget))
        return tooLarge(error);
    // Without the last line end, so that no part of the file is an object by itself.
    const QByteArray bytes = QJsonDocument(object).toJson(QJsonDocument::Indented).trimmed();
    if (bytes.size() > maximumSize)
        return tooLarge(error);
    return services.files->createFolder(AppRuntime(services).cacheDir(), folderMode, error) &&
           services.files->writeAtomically(pathOf(services, fileName), bytes, fileMode, error);
}

QJsonObject read(const PlatformServices &services, const QString &fileName)
{
    const std::optional<QByteArray> bytes = services.files->contentsUpTo(pathOf(services, fileName), maximumSize);
    return QJsonDocument::fromJson(bytes.value_or(QByteArray())).object();
}

} // namespace Tavelo::CloudCache
