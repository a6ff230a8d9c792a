#include "base/rowspool.h"

#include "base/ruleerror.h"
#include "base/savedfile.h"
#include "base/texts.h"

#include <QDir>

using Engine::Value;

namespace Tallymere {

namespace {

template <size_t index = 0> Value read(QDataStream &stream, size_t kind)
{
    if constexpr (index == std::variant_size_v<Value::Storage>) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return {};
    } else {
        using Type = std::variant_alternative_t<index, Value::Storage>;
        if (kind != index)
            return read<index + 1>(stream, kind);
        if constexpr (std::is_same_v<Type, std::monostate>) {
            return {};
        } else {
            Type content{};
            stream >> content;
            return content;
        }
    }
}

void write(QDataStream &stream, const Value &value)
{
    stream << static_cast<quint8>(value.storage().index());
    std::visit(
        [&](const auto &content) {
            if constexpr (!std::is_same_v<std::decay_t<decltype(content)>, std::monostate>)
                stream << content;
        },
        value.storage());
}

[[noreturn]] void refuse(const QString &reason)
{
    throw RuleError(BaseTexts::tr("The rows that were read cannot be kept in '%1'...\n%2")
                        .arg(QDir::toNativeSeparators(QDir::tempPath()), reason));
}

} // namespace

void RowSpool::append(const std::vector<Value> &row)
{
    if (!m_file.isOpen() && !m_file.open())
        refuse(m_file.errorString());
    m_stream << static_cast<quint32>(row.size());
    for (const Value &value : row)
        write(m_stream, value);
    if (m_stream.status() != QDataStream::Ok)
        refuse(reasonOfShortWrite(m_file));
    ++m_rows;
}

bool RowSpool::next(std::vector<Value> &row)
{
    if (m_rows == 0)
        return false;
    if (!std::exchange(m_isWritten, true) && (!m_file.flush() || !m_file.seek(0)))
        refuse(reasonOfShortWrite(m_file));
    quint32 size = 0;
    m_stream >> size;
    row.clear();
    for (quint32 i = 0; i < size && m_stream.status() == QDataStream::Ok; ++i) {
        quint8 kind = 0;
        m_stream >> kind;
        row.push_back(read(m_stream, kind));
    }
    if (m_stream.status() != QDataStream::Ok)
        refuse(m_file.errorString());
    --m_rows;
    return true;
}

} // namespace Tallymere
