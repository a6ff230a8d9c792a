#pragma once

#include "base/rowwriter.h"

#include <QByteArray>
#include <QString>

class QIODevice;

namespace Tallymere {

class SettingsStore;

// Programs for spreadsheets take a text for a formula that begins with "=", "+", "-", "@", a tab or a carriage return.
// Defused, it has an apostrophe before it, and does not read back as it was.
enum class CsvTexts { AsStored, Defused };
CsvTexts csvTexts(const SettingsStore *settings); // as the user wants them; without settings as stored

// Writes comma-separated records (RFC 4180) in UTF-8. Text is quoted where it must be; what is written goes to the
// device in larger blocks.
class CsvWriter final : public RowWriter
{
public:
    explicit CsvWriter(QIODevice &device, CsvTexts texts = CsvTexts::AsStored);
    ~CsvWriter() override;

    void field(const QString &text) override;
    void field(const Engine::Value &value) override;
    void endRecord() override;
    void flush() override; // hands everything to the device

private:
    void write(QByteArray bytes);

    QIODevice &m_device;
    const CsvTexts m_texts;
    QByteArray m_block;
    int m_fieldsInRecord = 0;
    qsizetype m_recordStart = 0;
};

} // namespace Tallymere
