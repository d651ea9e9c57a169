#pragma once

#include "AppStrings.h"
#include "SystemChecks.h"

#include <QAbstractListModel>
#include <QList>

namespace Tavelo
{

/// The rows of the last system check, in the language at hand.
class CheckListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        name = Qt::UserRole,
        detail,
        level, ///< "OK", "WARN" or "FAIL".
    };
    Q_ENUM(Role)

    explicit CheckListModel(AppLanguage language) : m_strings(language) {}

    void setChecks(const QList<SystemCheck> &checks);
    void setLanguage(AppLanguage language);

    const QList<SystemCheck> &checks() const { return m_checks; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    QList<SystemCheck> m_checks;
    AppStrings m_strings;
};

} // namespace Tavelo
