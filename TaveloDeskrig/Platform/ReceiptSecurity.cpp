#include "ReceiptSecurity.h"

#include <openssl/cms.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/objects.h>
#include <openssl/x509.h>
#include <openssl/x509_vfy.h>

namespace Tavelo
{

namespace
{

/// Marks a certificate that signs store receipts, and one that issues such certificates.
constexpr const char *receiptSignerExtension = "1.2.840.113635.100.6.11.1";
constexpr const char *receiptIssuerExtension = "1.2.840.113635.100.6.2.1";

/// Signer, issuer, root: the only chain that signs receipts.
constexpr int chainLength = 3;

template <auto release>
struct Release {
    template <class Object>
    void operator()(Object *object) const
    {
        release(object);
    }
};
void freeCertificates(STACK_OF(X509) * certificates)
{
    sk_X509_pop_free(certificates, X509_free);
}

using Message = std::unique_ptr<CMS_ContentInfo, Release<CMS_ContentInfo_free>>;
using Certificates = std::unique_ptr<STACK_OF(X509), Release<freeCertificates>>;
using Stream = std::unique_ptr<BIO, Release<BIO_free_all>>;
using Store = std::unique_ptr<X509_STORE, Release<X509_STORE_free>>;
using StoreContext = std::unique_ptr<X509_STORE_CTX, Release<X509_STORE_CTX_free>>;
using ObjectName = std::unique_ptr<ASN1_OBJECT, Release<ASN1_OBJECT_free>>;

/// The library keeps a list of errors for each thread; what is an answer here is none there.
struct ErrorsForgotten {
    ~ErrorsForgotten() { ERR_clear_error(); }
};

bool hasExtension(const X509 *certificate, const char *name)
{
    const ObjectName object(OBJ_txt2obj(name, 1));
    return object && X509_get_ext_by_OBJ(certificate, object.get(), -1) >= 0;
}

QByteArray fingerprint(const X509 *certificate)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    if (X509_digest(certificate, EVP_sha256(), digest, &length) != 1)
        return {};
    return QByteArray(reinterpret_cast<const char *>(digest), static_cast<qsizetype>(length));
}

class CmsReceipt : public SignedReceipt
{
public:
    CmsReceipt(Message message, QList<QByteArray> anchors)
        : m_message(std::move(message)), m_anchors(std::move(anchors))
    {
        const ErrorsForgotten scope;
        m_certificates.reset(CMS_get1_certs(m_message.get()));
        STACK_OF(CMS_SignerInfo) *const signers = CMS_get0_SignerInfos(m_message.get());
        if (sk_CMS_SignerInfo_num(signers) > 0)
            m_signer = sk_CMS_SignerInfo_value(signers, 0);
        for (int index = 0; m_signer && index < sk_X509_num(m_certificates.get()); ++index) {
            X509 *const candidate = sk_X509_value(m_certificates.get(), index);
            if (!m_signerCertificate && CMS_SignerInfo_cert_cmp(m_signer, candidate) == 0)
                m_signerCertificate = candidate;
        }
        if (m_signerCertificate)
            CMS_SignerInfo_set1_signer_cert(m_signer, m_signerCertificate);
    }

    std::optional<QByteArray> content() const override
    {
        ASN1_OCTET_STRING **const content = CMS_get0_content(m_message.get());
        if (!content || !*content)
            return std::nullopt;
        return QByteArray(reinterpret_cast<const char *>(ASN1_STRING_get0_data(*content)),
                          ASN1_STRING_length(*content));
    }

    bool signerIsValid() const override
    {
        const ErrorsForgotten scope;
        const std::optional<QByteArray> payload = content();
        if (!m_signerCertificate || !payload)
            return false;
        // With signed attributes the signature is over these, and they hold the payload's digest; both must hold.
        if (CMS_signed_get_attr_count(m_signer) >= 0 && CMS_SignerInfo_verify(m_signer) != 1)
            return false;
        // The payload goes through the signer's own digest and no other: the message may list any number of them.
        X509_ALGOR *algorithm = nullptr;
        CMS_SignerInfo_get0_algs(m_signer, nullptr, nullptr, &algorithm, nullptr);
        const EVP_MD *const digest = algorithm ? EVP_get_digestbyobj(algorithm->algorithm) : nullptr;
        BIO *const content = BIO_new_mem_buf(payload->constData(), static_cast<int>(payload->size()));
        const Stream digests(BIO_push(BIO_new(BIO_f_md()), content));
        if (!digest || !content || !digests || BIO_set_md(digests.get(), digest) != 1)
            return false;
        char buffer[4096];
        while (BIO_read(digests.get(), buffer, sizeof buffer) > 0) {
        }
        return CMS_SignerInfo_verify_content(m_signer, digests.get()) == 1;
    }

    bool signerIsTrusted(const QDateTime &moment) const override
    {
        const ErrorsForgotten scope;
        const Store store(X509_STORE_new());
        const StoreContext context(X509_STORE_CTX_new());
        if (!m_signerCertificate || !store || !context)
            return false;
        for (int index = 0; index < sk_X509_num(m_certificates.get()); ++index) {
            X509 *const certificate = sk_X509_value(m_certificates.get(), index);
            if (m_anchors.contains(fingerprint(certificate)))
                X509_STORE_add_cert(store.get(), certificate);
        }
        if (X509_STORE_CTX_init(context.get(), store.get(), m_signerCertificate, m_certificates.get()) != 1)
            return false;
        // The chain of earlier receipts is signed with SHA-1, which today's levels of security refuse.
        X509_VERIFY_PARAM_set_auth_level(X509_STORE_CTX_get0_param(context.get()), 0);
        X509_STORE_CTX_set_time(context.get(), 0, static_cast<time_t>(moment.toSecsSinceEpoch()));
        if (X509_verify_cert(context.get()) != 1)
            return false;
        STACK_OF(X509) *const chain = X509_STORE_CTX_get0_chain(context.get());
        return sk_X509_num(chain) == chainLength && hasExtension(sk_X509_value(chain, 0), receiptSignerExtension) &&
               hasExtension(sk_X509_value(chain, 1), receiptIssuerExtension);
    }

private:
    Message m_message;
    QList<QByteArray> m_anchors;
    Certificates m_certificates;
    CMS_SignerInfo *m_signer = nullptr;  // of m_message
    X509 *m_signerCertificate = nullptr; // of m_certificates
};

} // namespace

SignedReceipt::~SignedReceipt() = default;

QByteArray ReceiptSecurity::appleRootFingerprint()
{
    return QByteArray::fromHex("B0B1730ECBC7FF4505142C49F1295E6EDA6BCAED7E2C68C5BE91B5A11001F024");
}

ReceiptSecurity::ReceiptSecurity(QList<QByteArray> anchors) : m_anchors(std::move(anchors)) {}

ReceiptSecurity::~ReceiptSecurity() = default;

bool ReceiptSecurity::isAvailable() const
{
    return true;
}

bool ReceiptSecurity::hasReceiptPolicy() const
{
    return true;
}

std::unique_ptr<SignedReceipt> ReceiptSecurity::decode(const QByteArray &bytes) const
{
    const ErrorsForgotten scope;
    const auto *position = reinterpret_cast<const unsigned char *>(bytes.constData());
    Message message(d2i_CMS_ContentInfo(nullptr, &position, static_cast<long>(bytes.size())));
    if (!message || OBJ_obj2nid(CMS_get0_type(message.get())) != NID_pkcs7_signed)
        return nullptr;
    return std::make_unique<CmsReceipt>(std::move(message), m_anchors);
}

} // namespace Tavelo
