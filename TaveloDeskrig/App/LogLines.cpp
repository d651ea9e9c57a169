#include "LogLines.h"

namespace Tavelo
{

void LogLines::append(const QString &line)
{
    const int end = static_cast<int>(m_lines.size());
    beginInsertRows({}, end, end);
    m_lines.append(line);
    endInsertRows();
    if (m_lines.size() > maximumCount) {
        beginRemoveRows({}, 0, 0);
        m_lines.removeFirst();
        endRemoveRows();
    }
}

int LogLines::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

QVariant LogLines::data(const QModelIndex &index, int role) const
{
    return role == Qt::DisplayRole && checkIndex(index, CheckIndexOption::IndexIsValid) ? m_lines.at(index.row())
                                                                                        : QVariant();
}

} // namespace Tavelo
