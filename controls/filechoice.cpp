#include "controls/filechoice.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Tallymere {

QString chooseFileToSave(QWidget *window, const FileChoice &choice)
{
    const bool there = !choice.folder.isEmpty() && QFileInfo(choice.folder).isDir();
    const QString folder =
        there ? choice.folder : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog dialog(window, choice.title, folder, u"%1 (*.%2)"_s.arg(choice.kind, choice.suffix));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(choice.suffix);
    dialog.selectFile(choice.name);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.selectedFiles().value(0);
}

} // namespace Tallymere
