#pragma once

#include "phonecount/countdesk.h"

#include <functional>

namespace Engine {
class Database;
}

namespace Tallymere {

class StockCount;

// The desk of a count that is open. The functions are asked each time; `taken` follows each count that has been taken.
class StockCountDesk final : public CountDesk
{
public:
    struct Screen
    {
        std::function<bool()> isBlind;
        std::function<bool()> isBusy;
        std::function<void(int row)> taken;
    };
    StockCountDesk(Engine::Database &database, StockCount &count, QString place, Screen screen);

    QString countId() const override;
    QString place() const override { return m_place; }
    const CountList &list() const override;
    void listChanged() override;
    QStringList barcodesOf(qint64 item) const override { return m_barcodes.value(item); }
    bool isBlind() const override { return m_screen.isBlind(); }
    bool isBusy() const override;
    std::optional<QString> take(int row, double quantity, const QString &by, bool confirmed) override;

private:
    Engine::Database &m_database;
    StockCount &m_count;
    const QString m_place;
    const Screen m_screen;
    QHash<qint64, QStringList> m_barcodes;
};

} // namespace Tallymere
