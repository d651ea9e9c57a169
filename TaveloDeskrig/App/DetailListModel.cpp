#include "DetailListModel.h"

#include "RoleNames.h"

namespace Tavelo
{

void DetailListModel::setDetails(const QList<Detail> &details)
{
    beginResetModel();
    m_details = details;
    endResetModel();
}

int DetailListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_details.size());
}

QVariant DetailListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Detail &detail = m_details.at(index.row());
    switch (role) {
    case title:
        return detail.title;
    case value:
        return detail.value;
    case monospaced:
        return detail.monospaced;
    default:
        return {};
    }
}

QHash<int, QByteArray> DetailListModel::roleNames() const
{
    return roleNamesOf<Role>();
}

} // namespace Tavelo
