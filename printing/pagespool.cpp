#include "printing/pagespool.h"

#include "base/ruleerror.h"
#include "base/savedfile.h"
#include "printing/texts.h"

#include <QDataStream>
#include <QDir>

namespace Tallymere::Printing {

namespace {

// The file itself has no name as long as nobody asks for it: then it goes with the program, however that ends.
[[noreturn]] void refuse(const QString &reason)
{
    throw RuleError(PrintingTexts::tr("The pages of the report cannot be kept in '%1'...\n%2")
                        .arg(QDir::toNativeSeparators(QDir::tempPath()), reason));
}

} // namespace

void PageSpool::append(const Page &page)
{
    if (!m_file.isOpen() && !m_file.open())
        refuse(m_file.errorString());
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << page;
    if (!m_file.seek(m_end) || m_file.write(bytes) != bytes.size() || !m_file.flush())
        refuse(reasonOfShortWrite(m_file));
    m_starts.append(m_end);
    m_end += bytes.size();
}

Page PageSpool::page(int index) const
{
    Page page;
    if (!m_file.seek(m_starts.at(index)))
        refuse(m_file.errorString());
    QDataStream stream(&m_file);
    stream >> page;
    if (stream.status() != QDataStream::Ok)
        refuse(m_file.errorString());
    return page;
}

} // namespace Tallymere::Printing
