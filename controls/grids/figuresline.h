#pragma once

#include "controls/windows/elidedlabel.h"

namespace Tallymere {

class DataGrid;

// A quiet line beside a grid: the figures of the row with the cursor that its columns are too narrow for.
class FiguresLine final : public ElidedLabel
{
    Q_OBJECT

public:
    explicit FiguresLine(QWidget *parent = nullptr);

    void follow(const DataGrid &grid); // which shows its model already
    enum class Note { Plain, Warning };
    void setNote(const QString &note, Note kind = Note::Plain); // what is said before them

private:
    void showFigures(const DataGrid &grid);
    void showAll();
    QColor ink() const override;

    QString m_note;
    Note m_kind = Note::Plain;
    QString m_figures;
};

} // namespace Tallymere
