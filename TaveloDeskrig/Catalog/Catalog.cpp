#include "Catalog.h"

#include "CatalogTable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo::Catalog
{

namespace
{

QString installKey(const AppItem &item)
{
    const QString prefix = rawValue(item.kind) + u':';
    if (item.shortcut)
        return prefix + item.shortcut->fileName;
    if (!item.packages.isEmpty())
        return prefix +
               item.packages.join(QChar::Null); // No package name holds a NUL, so that lists never run together.
    return prefix + item.id;
}

} // namespace

const QList<AppItem> &items()
{
    static const QList<AppItem> table = makeItems();
    return table;
}

const QSet<QString> &standardGroups()
{
    static const QSet<QString> groups{u"office"_s, u"microsoft"_s, u"printer"_s};
    return groups;
}

bool isStandard(const AppItem &item)
{
    const QSet<QString> &groups = standardGroups();
    return std::any_of(groups.cbegin(), groups.cend(), [&](const QString &group) { return item.belongsTo(group); });
}

QList<AppItem> uniqueInstallItems(const QList<AppItem> &items)
{
    QList<AppItem> unique;
    QSet<QString> seen;
    for (const AppItem &item : items) {
        const QString key = installKey(item);
        if (seen.contains(key))
            continue;
        seen.insert(key);
        unique.append(item);
    }
    return unique;
}

} // namespace Tavelo::Catalog
