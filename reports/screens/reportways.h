#pragma once

#include "controls/windows/guard.h"
#include "controls/windows/screencontext.h"
#include "reports/reportdescription.h"

#include <optional>
#include <QObject>

class QPushButton;

namespace Tallymere {

class DialogScreen;
struct FileChoice;

// A report that a dialog asks for, and what it is to be about.
struct WantedReport
{
    ReportDescription report;
    ReportSelection selection;
};

// What a dialog offers with a report besides its preview: to save it, and, where the system has no printer and the preview
// is refused for that, to look at it on the screen all the same.
class ReportWays : public QObject
{
    Q_OBJECT

public:
    // What is asked for when a button is pressed: raises what is refused; nothing where there is nothing to show.
    using Ask = std::function<std::optional<WantedReport>()>;

    // The dialog and its buttons outlive the object.
    ReportWays(ScreenContext &context, DialogScreen &dialog, QPushButton &save, QPushButton &onScreen, Ask ask);

    // Shows the buttons that are of use, if any are.
    void offer(bool offered);

    // Previews belong to the dialog and go with it: for one that other windows may have to wait for.
    void keepPreviewsInDialog() { m_previewParent = &m_dialog; }

    const Guard &guard() const;

Q_SIGNALS:
    void shown(); // on the screen
    void saved();

private:
    void savePdf();
    void saveCsv();
    void saveXlsx();
    void showOnScreen();
    void save(const FileChoice &choice, const WantedReport &wanted,
              const std::function<void(const QString &file, Progress &progress)> &write);

    ScreenContext &m_context;
    DialogScreen &m_dialog;
    QPushButton &m_save;
    QPushButton &m_onScreen;
    Ask m_ask;
    DialogScreen *m_previewParent = nullptr; // null: what the dialog belongs to
};

} // namespace Tallymere
