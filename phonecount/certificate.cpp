#include "phonecount/certificate.h"

#include "base/ruleerror.h"
#include "phonecount/texts.h"

#include <memory>
#include <openssl/evp.h>
#include <openssl/rand.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

namespace Tallymere {

namespace {

constexpr long day = 24L * 60 * 60;
constexpr long versionThree = 2;
constexpr int shownBytes = 8;

template <auto release> struct Release
{
    template <typename T> void operator()(T *held) const { release(held); }
};
using Key = std::unique_ptr<EVP_PKEY, Release<&EVP_PKEY_free>>;
using Signed = std::unique_ptr<X509, Release<&X509_free>>;
using Extension = std::unique_ptr<X509_EXTENSION, Release<&X509_EXTENSION_free>>;

void require(bool done)
{
    if (!done)
        throw RuleError(
            PhoneCountTexts::tr("No certificate could be made, without which nothing is sent to a phone."));
}

void extend(X509 *made, int what, const QByteArray &value)
{
    X509V3_CTX context{};
    X509V3_set_ctx_nodb(&context);
    X509V3_set_ctx(&context, made, made, nullptr, nullptr, 0);
    const Extension extension(X509V3_EXT_conf_nid(nullptr, &context, what, value.constData()));
    require(extension && X509_add_ext(made, extension.get(), -1) == 1);
}

// Positive, and other than that of any certificate a browser has seen from this address.
void number(X509 *made)
{
    quint64 random = 0;
    require(RAND_bytes(reinterpret_cast<unsigned char *>(&random), sizeof random) == 1
            && ASN1_INTEGER_set_uint64(X509_get_serialNumber(made), (random >> 1) | 1) == 1);
}

void name(X509 *made)
{
    static constexpr char called[] = "Tallymere count";
    X509_NAME *subject = X509_get_subject_name(made);
    require(X509_NAME_add_entry_by_txt(subject, "CN", MBSTRING_ASC, reinterpret_cast<const unsigned char *>(called),
                                       -1, -1, 0)
                == 1
            && X509_set_issuer_name(made, subject) == 1);
}

template <typename T> QByteArray bytesOf(T *thing, int (*write)(const T *, unsigned char **))
{
    QByteArray bytes(write(thing, nullptr), '\0');
    auto *at = reinterpret_cast<unsigned char *>(bytes.data());
    require(write(thing, &at) == bytes.size());
    return bytes;
}

} // namespace

Certificate certificateFor(const QHostAddress &address)
{
    const Key key(EVP_EC_gen("P-256"));
    const Signed made(X509_new());
    require(key && made && X509_set_version(made.get(), versionThree) == 1);
    number(made.get());
    name(made.get());
    require(X509_gmtime_adj(X509_getm_notBefore(made.get()), -day)
            && X509_gmtime_adj(X509_getm_notAfter(made.get()), 2 * day)
            && X509_set_pubkey(made.get(), key.get()) == 1);
    extend(made.get(), NID_basic_constraints, "critical,CA:FALSE");
    extend(made.get(), NID_ext_key_usage, "serverAuth");
    extend(made.get(), NID_subject_alt_name, "IP:" + address.toString().section(u'%', 0, 0).toLatin1());
    require(X509_sign(made.get(), key.get(), EVP_sha256()) > 0);
    Certificate both{QSslCertificate(bytesOf<X509>(made.get(), i2d_X509), QSsl::Der),
                     QSslKey(bytesOf<EVP_PKEY>(key.get(), i2d_PrivateKey), QSsl::Ec, QSsl::Der)};
    require(!both.certificate.isNull() && !both.key.isNull());
    return both;
}

QString fingerprintOf(const QSslCertificate &certificate)
{
    return QString::fromLatin1(
        certificate.digest(QCryptographicHash::Sha256).left(shownBytes).toHex(':').toUpper());
}

} // namespace Tallymere
