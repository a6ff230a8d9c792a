#pragma once

#include "controls/dialogscreen.h"

namespace Engine {
class DataSet;
}
namespace Ui {
class TfrmItemsFind;
}

namespace Tallymere {

class ItemPair;

// "Find Item": moves a list that has items to one of them.
class TfrmItemsFind final : public DialogScreen
{
    Q_OBJECT

public:
    // The list must outlive the dialog's showing.
    TfrmItemsFind(ScreenContext &context, Engine::DataSet &list, QWidget *parent);
    ~TfrmItemsFind() override;

    void btnOKClick();

protected:
    QWidget *widgetOfColumn(const QString &column) const override;

private:
    std::unique_ptr<Ui::TfrmItemsFind> m_ui;
    Engine::DataSet &m_list;
    ItemPair *m_item;
};

} // namespace Tallymere
