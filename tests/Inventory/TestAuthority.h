#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace Tavelo
{

/// A certificate authority of the test's own, which signs store receipts as Apple's does: a root, an issuer and a
/// signer, with the marks that such certificates carry. They hold in 2015 and 2016.
class TestAuthority
{
public:
    /// What is missing: a mark of the signer's or of the issuer's certificate, or the issuer, whose place the root
    /// takes.
    enum class Missing { nothing, signerMark, issuerMark, issuer };
    explicit TestAuthority(Missing missing = Missing::nothing);
    ~TestAuthority();
    Q_DISABLE_COPY_MOVE(TestAuthority)

    /// SHA-256 of the root certificate.
    QByteArray rootFingerprint() const;

    enum class Form { plain, withAttributes, withoutPayload };
    /// The payload as a signed message that holds the whole chain.
    QByteArray sign(const QByteArray &payload, Form form = Form::plain) const;

    /// A DER value: tag, length, content.
    static QByteArray der(quint8 tag, const QByteArray &content);
    /// One attribute of a receipt's payload.
    static QByteArray attribute(int type, const QByteArray &value);
    /// A payload with an identifier, a creation date and attributes that nobody is to read.
    static QByteArray payload(const QString &identifier, const QString &created);

private:
    struct Chain;
    std::unique_ptr<Chain> m_chain;
};

} // namespace Tavelo
