#include "TestAuthority.h"

#include <QtGlobal>

#include <openssl/cms.h>
#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/x509v3.h>

namespace Tavelo
{

namespace
{

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using Certificate = std::unique_ptr<X509, decltype(&X509_free)>;

/// The library fails here only if the test asks for something impossible.
void require(bool good)
{
    if (!good)
        qFatal("the test authority could not do its work");
}

void addExtension(X509 *certificate, const char *name, const char *value)
{
    X509_EXTENSION *const extension = X509V3_EXT_conf(nullptr, nullptr, name, value);
    require(X509_add_ext(certificate, extension, -1) == 1);
    X509_EXTENSION_free(extension);
}

} // namespace

struct TestAuthority::Chain {
    Key rootKey{EVP_EC_gen("P-256"), EVP_PKEY_free};
    Key issuerKey{EVP_EC_gen("P-256"), EVP_PKEY_free};
    Key signerKey{EVP_EC_gen("P-256"), EVP_PKEY_free};
    Certificate root{nullptr, X509_free};
    Certificate issuer{nullptr, X509_free};
    Certificate signer{nullptr, X509_free};

    /// A mark is an extension of a private name with an empty value.
    static Certificate certificate(const char *name, EVP_PKEY *key, X509 *issuer, EVP_PKEY *issuerKey, const char *mark)
    {
        static long serial = 1;
        Certificate made(X509_new(), X509_free);
        X509 *const bare = made.get();
        X509_set_version(bare, 2);
        ASN1_INTEGER_set(X509_get_serialNumber(bare), serial++);
        require(ASN1_TIME_set_string(X509_getm_notBefore(bare), "150101000000Z") == 1);
        require(ASN1_TIME_set_string(X509_getm_notAfter(bare), "170101000000Z") == 1);
        X509_NAME_add_entry_by_txt(X509_get_subject_name(bare), "CN", MBSTRING_UTF8,
                                   reinterpret_cast<const unsigned char *>(name), -1, -1, 0);
        X509_set_issuer_name(bare, X509_get_subject_name(issuer ? issuer : bare));
        X509_set_pubkey(bare, key);
        const bool signsCertificates = qstrcmp(name, "Signer") != 0;
        addExtension(bare, "basicConstraints", signsCertificates ? "critical,CA:TRUE" : "critical,CA:FALSE");
        if (mark)
            addExtension(bare, mark, "DER:0500");
        require(X509_sign(bare, issuerKey, EVP_sha256()) > 0);
        return made;
    }
};

TestAuthority::TestAuthority(Missing missing) : m_chain(std::make_unique<Chain>())
{
    Chain &chain = *m_chain;
    EVP_PKEY *const rootKey = chain.rootKey.get();
    chain.root = Chain::certificate("Root", rootKey, nullptr, rootKey, nullptr);
    chain.issuer = Chain::certificate("Issuer", chain.issuerKey.get(), chain.root.get(), rootKey,
                                      missing == Missing::issuerMark ? nullptr : "1.2.840.113635.100.6.2.1");
    const bool byRoot = missing == Missing::issuer;
    chain.signer = Chain::certificate("Signer", chain.signerKey.get(), (byRoot ? chain.root : chain.issuer).get(),
                                      byRoot ? rootKey : chain.issuerKey.get(),
                                      missing == Missing::signerMark ? nullptr : "1.2.840.113635.100.6.11.1");
}

TestAuthority::~TestAuthority() = default;

QByteArray TestAuthority::rootFingerprint() const
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    require(X509_digest(m_chain->root.get(), EVP_sha256(), digest, &length) == 1);
    return QByteArray(reinterpret_cast<const char *>(digest), static_cast<qsizetype>(length));
}

QByteArray TestAuthority::sign(const QByteArray &payload, Form form) const
{
    STACK_OF(X509) *const others = sk_X509_new_null();
    sk_X509_push(others, m_chain->issuer.get());
    sk_X509_push(others, m_chain->root.get());
    BIO *const content = BIO_new_mem_buf(payload.constData(), static_cast<int>(payload.size()));
    unsigned int flags = CMS_BINARY;
    if (form != Form::withAttributes)
        flags |= CMS_NOATTR;
    if (form == Form::withoutPayload)
        flags |= CMS_DETACHED;
    CMS_ContentInfo *const message = CMS_sign(m_chain->signer.get(), m_chain->signerKey.get(), others, content, flags);
    require(message != nullptr);
    unsigned char *bytes = nullptr;
    const int length = i2d_CMS_ContentInfo(message, &bytes);
    require(length > 0);
    QByteArray result(reinterpret_cast<const char *>(bytes), length);
    OPENSSL_free(bytes);
    CMS_ContentInfo_free(message);
    BIO_free(content);
    sk_X509_free(others);
    return result;
}

QByteArray TestAuthority::der(quint8 tag, const QByteArray &content)
{
    QByteArray bytes(1, static_cast<char>(tag));
    if (content.size() < 0x80) {
        bytes += static_cast<char>(content.size());
    } else {
        bytes += '\x82';
        bytes += static_cast<char>(content.size() >> 8);
        bytes += static_cast<char>(content.size() & 0xff);
    }
    return bytes + content;
}

QByteArray TestAuthority::attribute(int type, const QByteArray &value)
{
    return der(0x30,
               der(0x02, QByteArray(1, static_cast<char>(type))) + der(0x02, QByteArray(1, 1)) + der(0x04, value));
}

QByteArray TestAuthority::payload(const QString &identifier, const QString &created)
{
    return der(0x31, attribute(0, der(0x0c, "Production")) +
                         attribute(4, QByteArray("TAVELO-SECRET-RECEIPT").repeated(9)) +
                         attribute(2, der(0x0c, identifier.toUtf8())) + attribute(12, der(0x16, created.toLatin1())));
}

} // namespace Tavelo
