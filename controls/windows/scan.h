#pragma once

#include <QString>

class QKeyEvent;

namespace Tallymere {

// Tells what a barcode scanner has typed from what a hand has: a scanner's letters come faster than fingers are, and Enter
// or Tab comes at once behind them. The times are those of the keys themselves, so that a busy program changes nothing;
// keys without a time are of no scanner.
class Scan
{
public:
    static constexpr int fewestLetters = 4;
    static constexpr int longestPause = 40; // milliseconds from one letter to the next
    static constexpr int longestEnd = 120; // and to the key that ends it: some scanners wait before it

    // Takes notice of a key that was pressed. True for the one that ends a scan: code() is what was scanned.
    bool take(const QKeyEvent &key);
    const QString &code() const { return m_code; }

private:
    QString m_letters; // that have come fast so far
    QString m_code;
    quint64 m_last = 0; // when the last of them came
};

} // namespace Tallymere
