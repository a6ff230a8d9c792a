#pragma once

#include "controls/windows/screencontext.h"

#include <QObject>

class QWidget;

namespace Tallymere {

class ListGrid;
class ListStatus;

// What a list screen gives to other programs: rows on the clipboard, the list as a file. Long lists show
// progress, which can be cancelled, and the screen stays open until they are written.
class ListOutput : public QObject
{
    Q_OBJECT

public:
    ListOutput(ScreenContext &context, QWidget &window, ListGrid &grid, ListStatus &status);

    // The selected rows. Throws what the store raises; the clipboard stays as it was then.
    void copyRows();
    // The whole list as CSV in a file that the user names, the list's caption being proposed, in the folder of the last
    // one, until it can be written. There is somebody to ask (ScreenContext::chooseFileToSave).
    void saveCsv(const QString &caption);
    void saveXlsx(const QString &caption); // the same as a sheet

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void save(const FileChoice &choice, const std::function<void(const QString &file, Progress &)> &write);
    void run(const QString &what, const std::function<void(Progress &)> &work);

    ScreenContext &m_context;
    QWidget &m_window;
    ListGrid &m_grid;
    ListStatus &m_status;
};

} // namespace Tallymere
