#pragma once

#include <QLabel>

namespace Tallymere {

class DataGrid;

// A quiet line beside a grid: the figures of the row with the cursor that its columns are too narrow for.
// What there is no room for is in its tool tip.
class FiguresLine final : public QLabel
{
    Q_OBJECT

public:
    explicit FiguresLine(QWidget *parent = nullptr);

    void follow(const DataGrid &grid); // which shows its model already
    enum class Note { Plain, Warning };
    void setNote(const QString &note, Note kind = Note::Plain); // what is said before them

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void showFigures(const DataGrid &grid);
    void showAll();
    QString seen() const; // of the text, as much as there is room for

    QString m_note;
    Note m_kind = Note::Plain;
    QString m_figures;
};

} // namespace Tallymere
