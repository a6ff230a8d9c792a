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
    void setNote(const QString &note); // what is said before them

private:
    void showFigures(const DataGrid &grid);
    void showAll();

    QString m_note;
    QString m_figures;
};

} // namespace Tallymere
