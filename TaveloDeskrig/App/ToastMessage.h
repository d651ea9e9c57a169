#pragma once

#include <QObject>
#include <QString>
#include <QUuid>

namespace Tavelo
{

/// A short message over the window, which goes by itself.
struct ToastMessage {
    Q_GADGET
    Q_PROPERTY(QString text MEMBER text CONSTANT)
    Q_PROPERTY(Kind kind MEMBER kind CONSTANT)
    Q_PROPERTY(bool isShown READ isShown CONSTANT)

public:
    enum class Kind { success, warning, failure };
    Q_ENUM(Kind)

    QUuid id; ///< Null where there is no toast.
    QString text;
    Kind kind = Kind::success;

    bool isShown() const { return !id.isNull(); }
    bool operator==(const ToastMessage &) const = default;
};

} // namespace Tavelo
