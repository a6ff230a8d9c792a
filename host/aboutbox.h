#pragma once

#include <QDialog>

namespace Tallymere {

class AboutBox final : public QDialog
{
    Q_OBJECT

public:
    explicit AboutBox(QWidget *parent);
};

} // namespace Tallymere
