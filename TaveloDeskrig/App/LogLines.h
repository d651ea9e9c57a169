#pragma once

#include <QAbstractListModel>
#include <QStringList>

namespace Tavelo
{

/// The newest lines of the log, one row a line, with the text as the display role. A line too many drops the oldest.
class LogLines : public QAbstractListModel
{
    Q_OBJECT

public:
    static constexpr qsizetype maximumCount = 500;

    using QAbstractListModel::QAbstractListModel;

    void append(const QString &line);

    const QStringList &lines() const { return m_lines; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QStringList m_lines;
};

} // namespace Tavelo
