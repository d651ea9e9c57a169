#include "CheckListModel.h"

#include "RoleNames.h"

namespace Tavelo
{

void CheckListModel::setChecks(const QList<SystemCheck> &checks)
{
    beginResetModel();
    m_checks = checks;
    endResetModel();
}

void CheckListModel::setLanguage(AppLanguage language)
{
    m_strings = AppStrings(language);
    if (!m_checks.isEmpty())
        Q_EMIT dataChanged(index(0), index(static_cast<int>(m_checks.size()) - 1), {name, detail});
}

int CheckListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_checks.size());
}

QVariant CheckListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const SystemCheck &check = m_checks.at(index.row());
    switch (role) {
    case name:
        return m_strings.systemCheckName(check.name);
    case detail:
        return m_strings.systemCheckDetail(check.name, check.detail);
    case level:
        return levelWord(check.level);
    default:
        return {};
    }
}

QHash<int, QByteArray> CheckListModel::roleNames() const
{
    return roleNamesOf<Role>();
}

} // namespace Tavelo
