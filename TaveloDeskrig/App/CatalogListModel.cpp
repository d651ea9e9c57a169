#include "CatalogListModel.h"

#include "RoleNames.h"

#include <utility>

namespace Tavelo
{

void CatalogListModel::setItems(const QList<AppItem> &items)
{
    if (items == m_items)
        return;
    beginResetModel();
    m_items = items;
    endResetModel();
}

void CatalogListModel::setStatuses(const Statuses &statuses)
{
    const Statuses before = std::exchange(m_statuses, statuses);
    for (const AppItem &item : std::as_const(m_items)) {
        if (before.value(item.id, InstallStatus::missing) != statusOf(item))
            announce(item.id, {status, statusText, primaryActionLabel, canRemove});
    }
}

void CatalogListModel::setLanguage(AppLanguage language)
{
    m_strings = AppStrings(language);
    if (!m_items.isEmpty())
        Q_EMIT dataChanged(index(0), index(static_cast<int>(m_items.size()) - 1),
                           {name, description, groupLabels, source, packages, statusText, primaryActionLabel});
}

void CatalogListModel::setActiveItem(const ActiveItem &item)
{
    const ActiveItem before = std::exchange(m_activeItem, item);
    if (before == item)
        return;
    if (before.id != item.id) {
        announce(before.id, {isAtWork, itemProgress, itemProgressText, statusText});
        announce(item.id, {isAtWork, itemProgress, itemProgressText, statusText});
    } else {
        announce(item.id, {itemProgress, itemProgressText, statusText});
    }
}

int CatalogListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant CatalogListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const AppItem &item = m_items.at(index.row());
    const bool atWork = item.id == m_activeItem.id;
    switch (role) {
    case itemID:
        return item.id;
    case name:
        return m_strings.itemName(item);
    case description:
        return m_strings.itemDescription(item);
    case symbol:
        return item.symbol;
    case groupIDs:
        return QStringList{item.group} + item.extraGroups;
    case groupLabels: {
        QStringList labels{m_strings.groupLabel(item.group)};
        for (const QString &group : item.extraGroups)
            labels.append(m_strings.groupLabel(group));
        return labels;
    }
    case source:
        return m_strings.sourceLabel(item);
    case packages:
        return m_strings.packageSummary(item.packages);
    case status:
        return rawValue(statusOf(item));
    case statusText:
        return m_strings.statusText(statusOf(item), atWork ? m_activeItem.progressText : QString());
    case primaryActionLabel:
        return m_strings.primaryActionLabel(statusOf(item), item);
    case canRemove:
        return statusOf(item) == InstallStatus::installed && item.kind != AppKind::blocked;
    case isAtWork:
        return atWork;
    case itemProgress:
        return atWork ? m_activeItem.progress : 0;
    case itemProgressText:
        return atWork ? m_activeItem.progressText : QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> CatalogListModel::roleNames() const
{
    return roleNamesOf<Role>();
}

void CatalogListModel::announce(const QString &id, const QList<int> &roles)
{
    for (int row = 0; row < m_items.size(); ++row) {
        if (m_items.at(row).id == id)
            Q_EMIT dataChanged(index(row), index(row), roles);
    }
}

} // namespace Tavelo
