#pragma once

#include "controls/windows/elidedlabel.h"
#include "data/readaside.h"

#include <QTimer>

namespace Tallymere {

// Tells in the status bar, and in the titles of all windows, when the server is gone, and when it is there again. It looks for
// the server on a thread of its own and makes the connection anew, so that whoever does nothing meanwhile need not wait for it
// afterwards.
class ServerLabel final : public ElidedLabel
{
    Q_OBJECT

public:
    explicit ServerLabel(QWidget *parent);
    void follow(Engine::Database &database); // which outlives it

Q_SIGNALS:
    void connectedAgain();

private:
    void tell(bool isThere);
    static void markTitles(bool isThere);
    void look();
    void connectAgain();

    Engine::Database *m_database = nullptr;
    QTimer m_looking;
    ReadAside m_search{this};
};

} // namespace Tallymere
