#include "CatalogOverlays.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonValue>
#include <QSet>
#include <QVariant>

#include <algorithm>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace Tavelo::Catalog
{

namespace
{

struct Placement {
    bool active = true;
    std::optional<qint64> order;
};

/// The number without its fraction, and the nearest integer that there is for one out of range. A Boolean counts as 0
/// or 1.
std::optional<qint64> integer(const QJsonValue &value)
{
    if (value.isBool())
        return value.toBool() ? 1 : 0;
    if (!value.isDouble())
        return std::nullopt;
    const QVariant number = value.toVariant();
    if (number.typeId() == QMetaType::LongLong)
        return number.toLongLong();
    constexpr double limit = 9223372036854775808.0; // 2^63, the first that does not fit
    const double wide = number.toDouble();
    if (wide >= limit)
        return std::numeric_limits<qint64>::max();
    return wide < -limit ? std::numeric_limits<qint64>::min() : static_cast<qint64>(wide);
}

/// Nothing unless the value is a list of nothing but texts.
std::optional<QSet<QString>> idSet(const QJsonValue &value)
{
    if (!value.isArray())
        return std::nullopt;
    QSet<QString> ids;
    const QJsonArray array = value.toArray();
    for (const QJsonValue element : array) {
        if (!element.isString())
            return std::nullopt;
        ids.insert(element.toString());
    }
    return ids;
}

bool comesBefore(const std::optional<qint64> &a, const std::optional<qint64> &b)
{
    return a && (!b || *a < *b);
}

} // namespace

QList<AppItem> applyingCloudOverlay(const QList<QJsonObject> &rows, const QList<AppItem> &items)
{
    QHash<QString, Placement> placements;
    for (const QJsonObject &row : rows) {
        const QJsonValue id = row.value("item_id"_L1);
        if (id.isString())
            placements.insert(id.toString(),
                              {row.value("is_active"_L1).toBool(true), integer(row.value("sort_order"_L1))});
    }
    QList<AppItem> kept = items;
    kept.removeIf([&](const AppItem &item) { return !placements.value(item.id).active; });
    std::stable_sort(kept.begin(), kept.end(), [&](const AppItem &a, const AppItem &b) {
        return comesBefore(placements.value(a.id).order, placements.value(b.id).order);
    });
    return kept;
}

QList<AppItem> applyingBusinessPolicies(const QList<QJsonObject> &rows, const QList<AppItem> &items)
{
    QSet<QString> disabled;
    std::optional<QSet<QString>> allowed;
    for (const QJsonObject &row : rows) {
        const QJsonObject policy = row.value("policy"_L1).toObject();
        disabled.unite(idSet(policy.value("disabled_item_ids"_L1)).value_or(QSet<QString>()));
        if (const auto ids = idSet(policy.value("allowed_item_ids"_L1)))
            allowed = allowed ? allowed->intersect(*ids) : *ids;
    }
    QList<AppItem> kept = items;
    kept.removeIf(
        [&](const AppItem &item) { return disabled.contains(item.id) || (allowed && !allowed->contains(item.id)); });
    return kept;
}

} // namespace Tavelo::Catalog
