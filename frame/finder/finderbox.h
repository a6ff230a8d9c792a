#pragma once

#include "frame/finder/finder.h"

#include <QElapsedTimer>
#include <QFrame>
#include <QTimer>

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace Tallymere {

class Guard;

// The box over whatever window is active: one types, the answers come with each key, the arrow keys go along them, and
// Enter opens one. Escape, or a click beside it, takes it away.
class FinderBox final : public QFrame
{
    Q_OBJECT

public:
    // The main window and its guard outlive the box.
    FinderBox(QWidget &mainWindow, const Guard &guard);
    ~FinderBox() override;

    Finder &finder() { return m_finder; } // to be given its sources
    void openOver(const QWidget &window);

protected:
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void search();
    void readOn();
    void fill(const QList<FindGroup> &groups);
    void addHeading(const QString &caption);
    void addFinding(const Finding &finding);
    void move(int step); // over answers, not headings
    enum class Choice { Open, ShowCard };
    void choose(const QListWidgetItem *item, Choice choice = Choice::Open);
    void fitHeight();
    QString hint() const;

    const Guard &m_guard;
    Finder m_finder;
    QList<Finding> m_shown;
    QLineEdit *m_text;
    QListWidget *m_list;
    QLabel *m_hint;
    QTimer m_idle; // while something is read
    QElapsedTimer m_sinceSearch;
    bool m_news = false; // has been read since the last search
};

} // namespace Tallymere
