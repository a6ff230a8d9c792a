#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

namespace Tallymere {

// Writes comma-separated records (RFC 4180) in UTF-8. Text is quoted where it must be; what is written goes to the
// device in larger blocks.
class CsvWriter
{
public:
    explicit CsvWriter(QIODevice &device);
    ~CsvWriter(); // what flush() has not written is lost
    CsvWriter(const CsvWriter &) = delete;
    CsvWriter &operator=(const CsvWriter &) = delete;

    void field(const QString &text);
    void endRecord();
    // Hands everything to the device. Throws RuleError when that fails, as endRecord() may.
    void flush();

private:
    QIODevice &m_device;
    QByteArray m_block;
    int m_fieldsInRecord = 0;
    qsizetype m_recordStart = 0;
};

} // namespace Tallymere
