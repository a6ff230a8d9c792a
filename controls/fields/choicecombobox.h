#pragma once

#include <QComboBox>

namespace Tallymere {

// A box with a few words to choose from, of which the first, empty, stands for none: Delete goes back to it, as in the boxes
// that choose records.
class ChoiceComboBox final : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace Tallymere
