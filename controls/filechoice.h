#pragma once

#include <QString>

class QWidget;

namespace Tallymere {

struct ScreenContext;

// A file that the user shall name.
struct FileChoice
{
    QString title; // of the dialog
    QString name; // proposed, without folder
    QString kind; // "CSV files"
    QString suffix; // "csv", for a name without one
    QString folder = {}; // where the dialog begins; the user's documents when there is no such folder
};

// The system's dialog, over a window. Asks before a file that is there is chosen. Empty when the user has cancelled.
QString chooseFileToSave(QWidget *window, const FileChoice &choice);

// The same as the context asks, beginning in the folder of the file that was chosen last, anywhere in the system. There is
// somebody to ask (ScreenContext::chooseFileToSave).
QString chooseFile(const ScreenContext &context, QWidget *window, FileChoice choice);

} // namespace Tallymere
