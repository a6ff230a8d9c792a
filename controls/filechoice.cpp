#include "controls/filechoice.h"

#include "controls/screencontext.h"
#include "data/utilsinv.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr auto savingSection = "SaveAsCsv"_L1; // of all files by now
constexpr auto folderKey = "Folder"_L1;
} // namespace

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

QString chooseFile(const ScreenContext &context, QWidget *window, FileChoice choice)
{
    if (context.settings)
        choice.folder = context.settings->read(formSetting(savingSection), folderKey);
    const QString file = context.chooseFileToSave(window, choice);
    const QString used = file.isEmpty() ? choice.folder : QFileInfo(file).absolutePath();
    if (context.settings && used != choice.folder)
        context.settings->write(formSetting(savingSection), folderKey, used);
    return file;
}

} // namespace Tallymere
