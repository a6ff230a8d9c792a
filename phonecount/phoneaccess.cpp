#include "phonecount/phoneaccess.h"

#include <array>
#include <QCryptographicHash>
#include <QRandomGenerator>

namespace Tallymere {

namespace {

constexpr size_t mostPhones = 32;
constexpr qsizetype mostAnswers = 2000;

QByteArray secret()
{
    std::array<quint32, 6> bits{}; // 192, of the system's own randomness
    QRandomGenerator::system()->fillRange(bits.data(), bits.size());
    const QByteArray bytes(reinterpret_cast<const char *>(bits.data()), sizeof bits);
    return bytes.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

// Comparing sums tells nothing of the secret by the time it takes.
QByteArray sum(const QByteArray &text) { return QCryptographicHash::hash(text, QCryptographicHash::Sha256); }

} // namespace

void Phone::remember(const QString &id, const QByteArray &answer)
{
    if (m_ids.size() >= mostAnswers)
        m_answers.remove(m_ids.dequeue());
    m_ids.enqueue(id);
    m_answers.insert(id, answer);
}

const QByteArray *Phone::answered(const QString &id) const
{
    const auto found = m_answers.constFind(id);
    return found == m_answers.constEnd() ? nullptr : &*found;
}

QByteArray PhoneAccess::newLink()
{
    const QByteArray link = secret();
    m_link = sum(link);
    return link;
}

QByteArray PhoneAccess::use(const QByteArray &link)
{
    if (m_link.isEmpty() || m_phones.size() >= mostPhones || sum(link) != m_link)
        return {};
    m_phones.push_back(std::make_unique<Phone>());
    m_phones.back()->link = std::exchange(m_link, {});
    m_phones.back()->number = static_cast<int>(m_phones.size());
    QByteArray key = secret();
    m_keys.insert(sum(key), m_phones.back().get());
    return key;
}

bool PhoneAccess::opens(const QByteArray &link, const Phone &phone) const
{
    const QByteArray told = sum(link);
    return told == phone.link || told == m_link;
}

Phone *PhoneAccess::phoneOf(const QByteArray &key) { return key.isEmpty() ? nullptr : m_keys.value(sum(key)); }

} // namespace Tallymere
