#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>

#include <memory>
#include <optional>

namespace Tavelo
{

/// A signed message that was read: a store receipt as it lies in a bundle. Virtual, so that a test can fail one step.
class SignedReceipt
{
public:
    SignedReceipt() = default;
    virtual ~SignedReceipt();
    Q_DISABLE_COPY_MOVE(SignedReceipt)

    /// The payload that the message carries; nothing for a message without one. Says nothing of its integrity.
    virtual std::optional<QByteArray> content() const = 0;

    /// True when the first signer's signature over the payload holds, by the signer's certificate in the message. Trust
    /// in that certificate is not asked for.
    virtual bool signerIsValid() const = 0;

    /// True when the signer's certificate chains, at that moment, to the pinned anchor through the certificates of the
    /// message, and the chain is one that signs store receipts.
    virtual bool signerIsTrusted(const QDateTime &moment) const = 0;
};

/// Reads and verifies the signed messages (CMS) of store receipts.
class ReceiptSecurity
{
public:
    /// SHA-256 fingerprint of the Apple Root CA, as Apple publishes it.
    static QByteArray appleRootFingerprint();

    /// `anchors` are SHA-256 fingerprints of the root certificates that a receipt may chain to.
    explicit ReceiptSecurity(QList<QByteArray> anchors = {appleRootFingerprint()});
    virtual ~ReceiptSecurity();
    Q_DISABLE_COPY_MOVE(ReceiptSecurity)

    /// True when the system's verifier can be set up at all.
    virtual bool isAvailable() const;

    /// True when there is a rule to judge the trust of store receipts by.
    virtual bool hasReceiptPolicy() const;

    /// The message that the bytes begin with; nothing when they do not hold a whole signed message. Bytes behind it are
    /// ignored.
    virtual std::unique_ptr<SignedReceipt> decode(const QByteArray &bytes) const;

private:
    QList<QByteArray> m_anchors;
};

} // namespace Tavelo
