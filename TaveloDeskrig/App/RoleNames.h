#pragma once

#include <QByteArray>
#include <QHash>
#include <QMetaEnum>

namespace Tavelo
{

/// The names by which views ask a model for its roles: those of the enum's own values.
template <typename Role>
QHash<int, QByteArray> roleNamesOf()
{
    const QMetaEnum roles = QMetaEnum::fromType<Role>();
    QHash<int, QByteArray> names;
    for (int index = 0; index < roles.keyCount(); ++index)
        names.insert(roles.value(index), roles.key(index));
    return names;
}

} // namespace Tavelo
