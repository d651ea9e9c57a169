#include "Certificate.h"

#include <QHostAddress>
#include <QSslCertificate>

#include <memory>

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using X509Certificate = std::unique_ptr<X509, decltype(&X509_free)>;

void require(bool good)
{
    if (!good)
        qFatal("The local cloud could not make its certificate");
}

Key newKey()
{
    Key key(EVP_EC_gen("P-256"), EVP_PKEY_free);
    require(key != nullptr);
    return key;
}

/// As an extension spells the names: `DNS:localhost,IP:127.0.0.1`, with `form` around each of them.
QByteArray spelled(const QStringList &names, const QString &form, const QString &mask)
{
    QStringList entries;
    for (const QString &name : names) {
        const bool isAddress = QHostAddress(name).protocol() == QAbstractSocket::IPv4Protocol;
        entries.append(form.arg(isAddress ? u"IP:"_s + name + mask : u"DNS:"_s + name));
    }
    return entries.join(u',').toUtf8();
}

struct Extension {
    int nid;
    QByteArray value;
};

X509Certificate certificate(const char *name, EVP_PKEY *key, X509 *issuer, EVP_PKEY *issuerKey, int days,
                            const QList<Extension> &extensions)
{
    X509Certificate made(X509_new(), X509_free);
    X509_set_version(made.get(), 2);
    quint64 serial = 0;
    require(RAND_bytes(reinterpret_cast<unsigned char *>(&serial), sizeof serial) == 1 &&
            ASN1_INTEGER_set_uint64(X509_get_serialNumber(made.get()), serial) == 1);
    X509_gmtime_adj(X509_getm_notBefore(made.get()), -60);
    X509_gmtime_adj(X509_getm_notAfter(made.get()), days * 24L * 60 * 60);
    X509_NAME_add_entry_by_txt(X509_get_subject_name(made.get()), "CN", MBSTRING_UTF8,
                               reinterpret_cast<const unsigned char *>(name), -1, -1, 0);
    X509_set_issuer_name(made.get(), X509_get_subject_name(issuer ? issuer : made.get()));
    X509_set_pubkey(made.get(), key);
    X509V3_CTX context;
    X509V3_set_ctx(&context, issuer ? issuer : made.get(), made.get(), nullptr, nullptr, 0);
    for (const auto &[nid, value] : extensions) {
        X509_EXTENSION *const extension = X509V3_EXT_conf_nid(nullptr, &context, nid, value.constData());
        require(extension && X509_add_ext(made.get(), extension, -1) == 1);
        X509_EXTENSION_free(extension);
    }
    require(X509_sign(made.get(), issuerKey, EVP_sha256()) > 0);
    return made;
}

/// What `write` writes, as bytes.
template <typename Write>
QByteArray pem(Write write)
{
    const std::unique_ptr<BIO, decltype(&BIO_free)> buffer(BIO_new(BIO_s_mem()), BIO_free);
    require(write(buffer.get()) == 1);
    char *bytes = nullptr;
    const long length = BIO_get_mem_data(buffer.get(), &bytes);
    return QByteArray(bytes, length);
}

} // namespace

Certificate Certificate::make(const QStringList &names, int days)
{
    const Key authorityKey = newKey();
    const Key serverKey = newKey();
    const X509Certificate authority =
        certificate("Tavelo local cloud authority", authorityKey.get(), nullptr, authorityKey.get(), days,
                    {{NID_basic_constraints, "critical,CA:TRUE,pathlen:0"},
                     {NID_key_usage, "critical,keyCertSign"},
                     {NID_name_constraints, "critical," + spelled(names, u"permitted;%1"_s, u"/255.255.255.255"_s)},
                     {NID_subject_key_identifier, "hash"}});
    const X509Certificate server =
        certificate("Tavelo local cloud", serverKey.get(), authority.get(), authorityKey.get(), days,
                    {{NID_basic_constraints, "critical,CA:FALSE"},
                     {NID_key_usage, "critical,digitalSignature"},
                     {NID_ext_key_usage, "serverAuth"},
                     {NID_subject_alt_name, spelled(names, u"%1"_s, QString())},
                     {NID_authority_key_identifier, "keyid"}});
    return {pem([&](BIO *to) { return PEM_write_bio_X509(to, authority.get()); }),
            pem([&](BIO *to) { return PEM_write_bio_X509(to, server.get()); }), pem([&](BIO *to) {
                return PEM_write_bio_PrivateKey(to, serverKey.get(), nullptr, nullptr, 0, nullptr, nullptr);
            })};
}

bool Certificate::serves(QStringList names, const QDateTime &at) const
{
    const QSslCertificate certificate(server);
    QStringList held = certificate.subjectAlternativeNames().values();
    held.sort();
    names.sort();
    return !authority.isEmpty() && !serverKey.isEmpty() && held == names && certificate.expiryDate() > at;
}

} // namespace Tavelo
