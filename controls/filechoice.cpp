#include "controls/filechoice.h"

#include <QFileDialog>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Tallymere {

QString chooseFileToSave(QWidget *window, const FileChoice &choice)
{
    static QString folder; // the one used last, until the program ends
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog dialog(window, choice.title, folder, u"%1 (*.%2)"_s.arg(choice.kind, choice.suffix));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(choice.suffix);
    dialog.selectFile(choice.name);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    folder = dialog.directory().absolutePath();
    return dialog.selectedFiles().value(0);
}

} // namespace Tallymere
