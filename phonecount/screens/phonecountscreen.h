#pragma once

#include "controls/screens/dialogscreen.h"
#include "phonecount/phoneserver.h"

#include <memory>

namespace Ui {
class TfrmPhoneCount;
}

namespace Tallymere {

// "Count on a Phone": a count is served to phones on the local network for as long as this window lives; closing hides it,
// and the count goes on beside it. It shows the address as a picture to scan, who counts and how many numbers have come.
class TfrmPhoneCount final : public DialogScreen
{
    Q_OBJECT

public:
    // At one of the addresses of this machine. RuleError where there is none, or no page can be served. The name tells the
    // count's location from that of other counts.
    TfrmPhoneCount(ScreenContext &context, std::unique_ptr<CountDesk> desk, const QString &name,
                   const QList<QHostAddress> &addresses, QWidget *parent);
    ~TfrmPhoneCount() override;

    PhoneService &service() const { return m_server->service(); }
    void end() { m_server.reset(); } // at once, with all that it has let in; there is no service any more
    void listChanged(); // other items

Q_SIGNALS:
    void changed(); // who counts, or how many numbers have come
    void stopped(); // by the user: the window is to go

private:
    void serve(); // at the address that is chosen
    void addressChosen(int index);
    void showLink();
    void showPhones();
    QString stateText() const;

    const std::unique_ptr<::Ui::TfrmPhoneCount> m_ui;
    const std::unique_ptr<CountDesk> m_desk;
    const QString m_name;
    std::unique_ptr<PhoneServer> m_server;
    int m_chosen = 0; // address
};

} // namespace Tallymere
