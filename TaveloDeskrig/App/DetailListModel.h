#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace Tavelo
{

/// The titled values of a sheet, in their order.
class DetailListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        title = Qt::UserRole,
        value,
        monospaced, ///< The value is for machines.
    };
    Q_ENUM(Role)

    struct Detail {
        QString title;
        QString value;
        bool monospaced = false;
    };

    using QAbstractListModel::QAbstractListModel;

    void setDetails(const QList<Detail> &details);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    QList<Detail> m_details;
};

} // namespace Tavelo
