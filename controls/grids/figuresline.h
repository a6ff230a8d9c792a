#pragma once

#include <QLabel>

namespace Tallymere {

class DataGrid;

// A quiet line beside a grid: the figures of the row with the cursor that its columns are too narrow for.
class FiguresLine final : public QLabel
{
    Q_OBJECT

public:
    explicit FiguresLine(QWidget *parent = nullptr);

    void follow(const DataGrid &grid); // which shows its model already

private:
    void showFigures(const DataGrid &grid);
};

} // namespace Tallymere
