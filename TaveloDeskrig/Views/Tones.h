#pragma once

#include "ToastMessage.h"

#include <QColor>
#include <QObject>
#include <QString>

#include <QtQml/qqml.h>

namespace Tavelo
{

/// The colours of a pill, a badge or a message.
struct Tone {
    Q_GADGET
    QML_VALUE_TYPE(tone)
    Q_PROPERTY(QColor text MEMBER text CONSTANT)
    Q_PROPERTY(QColor fill MEMBER fill CONSTANT)
    Q_PROPERTY(QColor border MEMBER border CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)

public:
    QColor text;
    QColor fill;
    QColor border;
    QString symbol = {}; ///< System symbol name, where the tone has one.

    bool operator==(const Tone &) const = default;
};

/// What a state looks like, by its raw value. A value that is not known looks neutral.
class Tones : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor success MEMBER success CONSTANT)
    Q_PROPERTY(QColor warning MEMBER warning CONSTANT)
    Q_PROPERTY(QColor danger MEMBER danger CONSTANT)

public:
    using QObject::QObject;

    static constexpr QColor success{31, 157, 85};
    static constexpr QColor warning{242, 169, 0};
    static constexpr QColor danger{214, 69, 69};

    /// Of an `InstallStatus`.
    Q_INVOKABLE static Tavelo::Tone status(const QString &status);
    /// Of a group's id.
    Q_INVOKABLE static Tavelo::Tone group(const QString &groupID);
    /// Of a source.
    Q_INVOKABLE static Tavelo::Tone source();
    /// Of a readiness check's level: "OK", "WARN", "FAIL".
    Q_INVOKABLE static Tavelo::Tone checkLevel(const QString &level);
    /// The same on the sidebar's dark ground.
    Q_INVOKABLE static Tavelo::Tone readiness(const QString &level);
    /// Of an `AuditEvidenceState`.
    Q_INVOKABLE static Tavelo::Tone auditEvidence(const QString &state);
    /// Of a `SignatureStatus`.
    Q_INVOKABLE static Tavelo::Tone signature(const QString &status);
    /// Of an `AppLicenseEvidenceState`.
    Q_INVOKABLE static Tavelo::Tone licence(const QString &state);
    /// Of a `ToastMessage::Kind`, with its symbol.
    Q_INVOKABLE static Tavelo::Tone toast(int kind);
};

} // namespace Tavelo
