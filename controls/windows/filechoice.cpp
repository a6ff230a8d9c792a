#include "controls/windows/filechoice.h"

#include "base/savedfile.h"
#include "base/settingsstore.h"
#include "controls/windows/screencontext.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
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
    dialog.setDefaultSuffix(choice.suffix);
    dialog.selectFile(QFileInfo(choice.name).fileName());
    if (auto *typed = dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)) // a desktop's own dialog has none
        typed->setText(choice.name);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.selectedFiles().value(0);
}

QString lastFolder(const ScreenContext &context)
{
    return context.settings ? context.settings->value(Settings::savingSection, Settings::SavingFolder) : QString();
}

void rememberFolder(const ScreenContext &context, const QString &file)
{
    const QString folder = QFileInfo(file).absolutePath();
    if (context.settings && folder != lastFolder(context))
        context.settings->setValue(Settings::savingSection, Settings::SavingFolder, folder);
}

QString saveToChosenFile(const ScreenContext &context, QWidget *window, FileChoice choice,
                         const std::function<void(const QString &file)> &save)
{
    for (;;) {
        choice.folder = lastFolder(context);
        const QString file = context.chooseFileToSave(window, choice);
        if (file.isEmpty())
            return {};
        const QFileInfo chosen(file);
        if (chosen.absoluteDir().exists())
            rememberFolder(context, file);
        try {
            save(file);
            return file;
        } catch (const SaveError &error) {
            context.prompts.error(error.message());
        }
        choice.name = chosen.absoluteDir().exists() ? chosen.fileName() : file;
    }
}

} // namespace Tallymere
