#include "GroupListModel.h"

#include "RoleNames.h"

#include <array>

namespace Tavelo
{

namespace
{

struct Group {
    QStringView id;
    QStringView symbol;
};
constexpr std::array groups{
    Group{u"all", u"square.grid.2x2"},
    Group{u"office", u"briefcase"},
    Group{u"microsoft", u"doc.on.doc"},
    Group{u"printer", u"printer"},
    Group{u"meeting", u"bubble.left.and.bubble.right"},
    Group{u"media", u"play.rectangle"},
};

} // namespace

void GroupListModel::setLanguage(AppLanguage language)
{
    m_strings = AppStrings(language);
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), {label});
}

int GroupListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(groups.size());
}

QVariant GroupListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Group &group = groups.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case groupID:
        return group.id.toString();
    case label:
        return m_strings.groupLabel(group.id.toString());
    case symbol:
        return group.symbol.toString();
    default:
        return {};
    }
}

QHash<int, QByteArray> GroupListModel::roleNames() const
{
    return roleNamesOf<Role>();
}

} // namespace Tavelo
