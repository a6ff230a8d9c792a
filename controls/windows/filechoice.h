#pragma once

#include <functional>
#include <QString>

class QWidget;

namespace Tallymere {

struct ScreenContext;

// A file that the user shall name.
struct FileChoice
{
    QString title; // of the dialog
    QString name; // proposed; with a folder where that need not be there
    QString kind; // "CSV files"
    QString suffix; // "csv", for a name without one
    QString folder = {}; // where the dialog begins; the user's documents when there is no such folder
};

// The system's dialog, over a window. Asks before a file that is there is chosen. Empty when the user has cancelled.
QString chooseFileToSave(QWidget *window, const FileChoice &choice);

// Lets the user name a file, as the context asks, beginning in the folder of the file that was chosen last, anywhere in the
// system, and has it written by the step. A SaveError is shown, and the file asked for again, with the name as it was typed.
// The file that was written; empty when the user has given up. There is somebody to ask (ScreenContext::chooseFileToSave).
QString saveToChosenFile(const ScreenContext &context, QWidget *window, FileChoice choice,
                         const std::function<void(const QString &file)> &save);

// The folder of the file that was chosen last, which need not be there any more; empty before the first.
QString lastFolder(const ScreenContext &context);
void rememberFolder(const ScreenContext &context, const QString &file);

} // namespace Tallymere
