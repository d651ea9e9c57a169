#pragma once

#include "AppStrings.h"

#include <QAbstractListModel>

namespace Tavelo
{

/// The groups of the catalog as the sidebar lists them, the one for the whole list first.
class GroupListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        groupID = Qt::UserRole,
        label,
        symbol, ///< System symbol name.
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    void setLanguage(AppLanguage language);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    AppStrings m_strings;
};

} // namespace Tavelo
