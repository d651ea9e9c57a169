#pragma once

#include "AppItem.h"
#include "AppStrings.h"

#include <QAbstractListModel>
#include <QHash>
#include <QList>

namespace Tavelo
{

/// The items of the group on screen, one row an item, with every text finished in the language at hand. A change of one
/// item's state is announced for its row and the roles that show it, and for no other.
class CatalogListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        itemID = Qt::UserRole,
        name,
        description,
        symbol, ///< System symbol name.
        /// Ids and labels of the item's groups, the primary one first.
        groupIDs,
        groupLabels,
        source,
        packages,
        status, ///< The raw value of `InstallStatus`.
        statusText,
        primaryActionLabel,
        canRemove,    ///< As far as the item is concerned: it is installed and of a kind that can be.
        isAtWork,     ///< The item belongs to the running operation, so that these two are to be shown.
        itemProgress, ///< 0 to 1.
        itemProgressText,
    };
    Q_ENUM(Role)

    using Statuses = QHash<QString, InstallStatus>;

    /// The item that an operation is at.
    struct ActiveItem {
        QString id; ///< Empty for none.
        double progress = 0;
        QString progressText;

        bool operator==(const ActiveItem &) const = default;
    };

    explicit CatalogListModel(AppLanguage language) : m_strings(language) {}

    void setItems(const QList<AppItem> &items);
    void setStatuses(const Statuses &statuses);
    void setLanguage(AppLanguage language);
    void setActiveItem(const ActiveItem &item);

    const QList<AppItem> &items() const { return m_items; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    InstallStatus statusOf(const AppItem &item) const { return m_statuses.value(item.id, InstallStatus::missing); }
    void announce(const QString &id, const QList<int> &roles);

    QList<AppItem> m_items;
    Statuses m_statuses;
    AppStrings m_strings;
    ActiveItem m_activeItem;
};

} // namespace Tavelo
